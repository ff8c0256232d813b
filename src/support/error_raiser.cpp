#include "support/error_raiser.hpp"

#include <excel/automation_error.hpp>

namespace vos {

void ErrorRaiser::Raise(int32_t code, const std::string& text) const {
    throw excel::AutomationError(code, text);
}

}  // namespace vos
