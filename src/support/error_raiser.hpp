#pragma once

#include <cstdint>
#include <string>

namespace vos {

// Raises the library's own failures to the client as automation errors.
class ErrorRaiser {
public:
    // Throws excel::AutomationError carrying the code and the text exactly as given.
    [[noreturn]] void Raise(int32_t code, const std::string& text) const;
};

}  // namespace vos
