#pragma once

#include <excel/excel.hpp>

#include <cstdint>
#include <initializer_list>
#include <memory>
#include <string>

namespace conformance {

// A new workbook holding exactly the named sheets, in this order.
inline std::shared_ptr<excel::Workbook> AddWorkbookWithSheets(excel::Application& app,
                                                              std::initializer_list<std::string> names) {
    app.SetSheetsInNewWorkbook(static_cast<int32_t>(names.size()));
    auto book = app.Workbooks()->Add();
    int32_t index = 1;
    for (const std::string& name : names) {
        book->Worksheets(index++)->SetName(name);
    }
    return book;
}

}  // namespace conformance
