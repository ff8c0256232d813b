#pragma once

#include <cstdint>

// The codes of the automation errors the library raises itself. Each comes with one text: the
// bare name of the offending argument or property, or a whole sentence (see each constant).
namespace vos::error_code {

// A required string argument is empty after trimming; the text names the argument.
inline constexpr int32_t EmptyArgument = static_cast<int32_t>(0x80040000);
// An argument has an invalid value or shape; the text is a sentence, or the argument's name.
inline constexpr int32_t InvalidArgument = static_cast<int32_t>(0x80040001);
// A required object is missing; the text names it.
inline constexpr int32_t MissingObject = static_cast<int32_t>(0x80040002);
// A number is out of range, or a chart type is not a VosChartType; the text names the argument.
inline constexpr int32_t OutOfRange = static_cast<int32_t>(0x80040003);
// The operation is not allowed in the object's current state; the text is a sentence.
inline constexpr int32_t NotAllowedNow = static_cast<int32_t>(0x8004000B);
// A property that must be set has not been set; the text names it.
inline constexpr int32_t PropertyNotSet = static_cast<int32_t>(0x8004000E);
// An enumeration argument holds a value outside its enumeration; the text names the argument.
inline constexpr int32_t NotInEnumeration = static_cast<int32_t>(0x80040014);

}  // namespace vos::error_code
