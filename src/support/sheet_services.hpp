#pragma once

#include <excel/fwd.hpp>

#include <cstdint>
#include <memory>
#include <string>

namespace vos {

// Sheet and application helpers: naming, finding and deleting sheets, qualifying sheet-level names.
class SheetServices {
public:
    // A name Excel accepts for a new sheet of the workbook and that no sheet there uses yet,
    // derived from the wanted name: characters Excel forbids become "_", apostrophes at either
    // end go, the name is cut to 31 characters, and a name in use (in any case) or Excel's
    // reserved "History" gets the first free suffix " (2)", " (3)", ...; an empty result is "Report".
    std::string MakeValidSheetName(const std::shared_ptr<excel::Workbook>& workbook, const std::string& wantedName) const;
    // Whether a sheet of that name (in any case, as Excel compares sheet names) exists, of any
    // kind: a chart sheet's name is taken too.
    bool WorkbookHasSheet(const std::shared_ptr<excel::Workbook>& workbook, const std::string& sheetName) const;
    // Deletes the sheet with Excel's alerts off, so that no confirmation prompt appears; the
    // application's DisplayAlerts setting is restored afterwards, also when the delete fails.
    void DeleteSheetQuietly(const std::shared_ptr<excel::Worksheet>& sheet) const;
    // The prefix that makes a defined name local to the sheet: "Data!", or "'Q1 Data'!" with
    // quotes where a formula needs them.
    std::string SheetNameQualifier(const std::shared_ptr<excel::Worksheet>& sheet) const;
    // Excel's major version: 16 for "16.0".
    int32_t ExcelMajorVersion(const std::shared_ptr<excel::Application>& application) const;
};

}  // namespace vos
