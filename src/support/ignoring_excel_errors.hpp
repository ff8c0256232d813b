#pragma once

#include <excel/automation_error.hpp>

#include <utility>

namespace vos {

// Runs one step whose failure in Excel must not stop the caller: a refused step is skipped and
// the caller goes on with the next one. Errors the library raises itself are not Excel's and are
// never raised inside such a step. Answers whether the step ran through.
template <class Step>
bool IgnoringExcelErrors(Step&& step) {
    try {
        std::forward<Step>(step)();
        return true;
    } catch (const excel::AutomationError&) {
        // Skipped on purpose: the step is optional, or the caller has another way.
        return false;
    }
}

}  // namespace vos
