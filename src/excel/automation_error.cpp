#include <excel/automation_error.hpp>

#include <string_view>

namespace excel {

namespace {

// The automation runtime's message for each error number it raises; anything else gets the
// runtime's catch-all text.
std::string_view RuntimeErrorText(int32_t number) {
    switch (number) {
        case 5:
            return "Invalid procedure call or argument";
        case 6:
            return "Overflow";
        case 7:
            return "Out of memory";
        case 9:
            return "Subscript out of range";
        case 11:
            return "Division by zero";
        case 13:
            return "Type mismatch";
        case 53:
            return "File not found";
        case 76:
            return "Path not found";
        case 91:
            return "Object variable or With block variable not set";
        case 94:
            return "Invalid use of Null";
        case 326:
            return "Resource not found";
        case 424:
            return "Object required";
        case 438:
            return "Object doesn't support this property or method";
        case 449:
            return "Argument not optional";
        case 450:
            return "Wrong number of arguments or invalid property assignment";
        default:
            return "Application-defined or object-defined error";
    }
}

}  // namespace

void ThrowRuntimeError(int32_t runtimeErrorNumber) {
    const auto code = static_cast<int32_t>(0x800A0000u + static_cast<uint32_t>(runtimeErrorNumber));
    throw AutomationError(code, std::string(RuntimeErrorText(runtimeErrorNumber)));
}

}  // namespace excel
