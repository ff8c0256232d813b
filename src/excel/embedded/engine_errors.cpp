#include "excel/embedded/engine_errors.hpp"

#include <excel/automation_error.hpp>

namespace excel::embedded {

void ThrowRefused(const std::string& text) {
    throw AutomationError(hresult::Refused, text);
}

void ThrowObjectRequired() {
    throw AutomationError(hresult::ObjectRequired, "Object required");
}

void ThrowTypeMismatch() {
    throw AutomationError(hresult::TypeMismatch, "Type mismatch");
}

}  // namespace excel::embedded
