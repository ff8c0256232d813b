#include "excel/embedded/objects/book/windows_view.hpp"

#include "excel/embedded/engine_errors.hpp"
#include "excel/embedded/objects/book/window_view.hpp"

#include <excel/automation_error.hpp>

namespace excel::embedded {

int32_t WindowsView::Count() {
    if (!model_->Alive()) {
        ThrowObjectRequired();
    }
    return 1;
}

std::shared_ptr<excel::Window> WindowsView::Item(const Variant& index) {
    Count();
    const bool first = index.IsString() ? index.ToString() == model_->Name() : index.ToInt() == 1;
    if (!first) {
        ThrowRuntimeError(9);
    }
    return std::make_shared<WindowView>(model_);
}

}  // namespace excel::embedded
