#pragma once

#include "excel/embedded/model/workbook_model.hpp"

#include <excel/windows.hpp>

namespace excel::embedded {

// A workbook's windows: the engine shows each workbook in one window.
class WindowsView final : public excel::Windows {
public:
    explicit WindowsView(std::shared_ptr<WorkbookModel> model) : model_(std::move(model)) {}

    int32_t Count() override;
    std::shared_ptr<excel::Window> Item(const Variant& index) override;

private:
    std::shared_ptr<WorkbookModel> model_;
};

}  // namespace excel::embedded
