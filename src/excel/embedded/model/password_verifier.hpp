#pragma once

#include <string>
#include <string_view>

namespace excel::embedded {

// Excel's legacy password verifier: the 16-bit hash a workbook's protection stores of its password
// (workbookPassword), as four upper-case hex digits ("CBEB" for "test"). Excel checks a password
// against it. At most 15 characters of the password count, each as one byte: its low byte, or its
// high byte when the low one is 0.
std::string LegacyPasswordVerifier(std::string_view password);

}  // namespace excel::embedded
