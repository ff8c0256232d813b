#pragma once

#include <excel/export.hpp>

#include <cstdint>
#include <stdexcept>
#include <string>

namespace excel {

// The one exception type every failure reaches the caller as: an automation error with a
// 32-bit HRESULT and its text. what() returns the text exactly as given.
class VOS_EXPORT AutomationError : public std::runtime_error {
public:
    AutomationError(int32_t code, const std::string& text) : std::runtime_error(text), code_(code) {}

    int32_t code() const noexcept { return code_; }

private:
    int32_t code_;
};

// HRESULTs shared by the boundary and both backends.
namespace hresult {
inline constexpr int32_t Refused = static_cast<int32_t>(0x800A03EC);  // Excel refused the operation
inline constexpr int32_t Overflow = static_cast<int32_t>(0x800A0006);
inline constexpr int32_t SubscriptOutOfRange = static_cast<int32_t>(0x800A0009);
inline constexpr int32_t DivisionByZero = static_cast<int32_t>(0x800A000B);
inline constexpr int32_t TypeMismatch = static_cast<int32_t>(0x800A000D);
inline constexpr int32_t InvalidProcedureCall = static_cast<int32_t>(0x800A0005);
inline constexpr int32_t ResourceNotFound = static_cast<int32_t>(0x800A0146);
inline constexpr int32_t ObjectRequired = static_cast<int32_t>(0x800A01A8);
inline constexpr int32_t FileNotFound = static_cast<int32_t>(0x800A0035);
inline constexpr int32_t PathNotFound = static_cast<int32_t>(0x800A004C);
}  // namespace hresult

// Throws the automation runtime's error of that number (0x800A0000 + number) with its usual text.
[[noreturn]] VOS_EXPORT void ThrowRuntimeError(int32_t runtimeErrorNumber);

}  // namespace excel
