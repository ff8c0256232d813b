// Opens each input as a workbook, saves it under another name and opens the saved file again. A
// file the engine opened must save, into a package that holds each part once and opens again with
// the same sheets; a refusal of the input itself is the answer to a damaged file.

#include "fuzz_workbook.hpp"

#include <excel/excel.hpp>

#include <cstddef>
#include <cstdint>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    auto book = vos_fuzz::OpenOrRefuse(vos_fuzz::WriteInput(data, size));
    if (!book) {
        return 0;
    }
    const auto sheets = vos_fuzz::ReadBack(*book);
    const std::string saved = vos_fuzz::ScratchPath("saved.xlsx");
    try {
        book->SaveAs(saved);
    } catch (const excel::AutomationError& error) {
        vos_fuzz::Fail(std::string("a workbook that opened was not saved: ") + error.what());
    }
    book->Close(false);
    if (const std::string repeated = vos_fuzz::RepeatedPartName(saved); !repeated.empty()) {
        vos_fuzz::Fail("the saved package holds the part " + repeated + " twice");
    }

    std::string refusal;
    auto again = vos_fuzz::OpenOrRefuse(saved, &refusal);
    if (!again) {
        vos_fuzz::Fail("the saved workbook does not open again: " + refusal);
    }
    if (vos_fuzz::ReadBack(*again) != sheets) {
        vos_fuzz::Fail("the saved workbook opens with other sheets");
    }
    again->Close(false);
    return 0;
}
