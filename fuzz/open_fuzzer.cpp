// Opens each input as a workbook and reads it back through the object model. A refusal (an
// AutomationError) is the answer to a damaged file; a crash, a sanitizer report, a leak or any other
// exception is a finding.

#include "fuzz_workbook.hpp"

#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    auto book = vos_fuzz::OpenOrRefuse(vos_fuzz::WriteInput(data, size));
    if (book) {
        vos_fuzz::ReadBack(*book);
        // Closed, so that the next input opens afresh and the engine does not grow.
        book->Close(false);
    }
    return 0;
}
