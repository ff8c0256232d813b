#pragma once

#include <vos/error_code.hpp>

#include <cstdint>
#include <string>

namespace vos {

// Raises a failure the library detected itself, through this thread's error raiser: the client
// receives an automation error with exactly this code and text, and the failing call ends here.
[[noreturn]] void RaiseLibraryError(int32_t code, const std::string& text);

}  // namespace vos
