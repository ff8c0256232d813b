#pragma once

#include <string>

namespace excel::embedded {

// Excel's answer to an operation it refuses (0x800A03EC, VBA's run-time error 1004).
[[noreturn]] void ThrowRefused(const std::string& text = "Application-defined or object-defined error");

// The answer to using an object whose workbook was closed or whose sheet was deleted.
[[noreturn]] void ThrowObjectRequired();

// The answer to asking for an object as a type it is not: a chart sheet as a Worksheet.
[[noreturn]] void ThrowTypeMismatch();

}  // namespace excel::embedded
