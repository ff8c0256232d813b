#pragma once

#include <excel/fwd.hpp>

#include <cstdint>
#include <memory>
#include <string>

namespace vos {

class VosExcelReportWorksheet;

// An Excel workbook that report sheets are written into. Only VosExcelReporting::NewReportWorkbook
// hands one out.
class VosExcelReportWorkbook {
public:
    virtual ~VosExcelReportWorkbook() = default;

    virtual std::shared_ptr<excel::Workbook> ExcelWorkbook() const = 0;
    virtual std::string applicationIdentifier() const = 0;
    virtual int32_t DefaultLanguage() const = 0;
    // Whether tables and headers take their colours from the workbook's theme; off at first.
    virtual bool UseThemes() const = 0;
    virtual void SetUseThemes(bool useThemes) = 0;

    // Appends a worksheet at the very end of the workbook, named after worksheetName (made
    // valid and unique), tagged for this application, and ready for report elements.
    virtual std::shared_ptr<VosExcelReportWorksheet> NewReportWorksheet(const std::string& worksheetName) = 0;
    // Deletes the sheets tagged for this application, or for any application when asked; untagged
    // sheets stay. A workbook left without sheets keeps a "_ReportPlaceholder_" sheet.
    virtual void DeleteReportWorksheets(bool deleteSheetsCreatedByAllVostrandApplications = false) = 0;
    // Activates the first report sheet made through this object, if any.
    virtual void ActivateFirstWorksheetCreated() = 0;

protected:
    VosExcelReportWorkbook() = default;
    VosExcelReportWorkbook(const VosExcelReportWorkbook&) = delete;
    VosExcelReportWorkbook& operator=(const VosExcelReportWorkbook&) = delete;
};

}  // namespace vos
