#pragma once

#include <excel/fwd.hpp>
#include <excel/export.hpp>

#include <cstdint>
#include <memory>
#include <string>

namespace vos {

class VosExcelReportWorkbook;

// The library's entry object, the only class a client creates. It holds no state: the
// unit-testing mode belongs to the calling thread, so every instance on a thread sees the same
// mode, and separate threads may build separate workbooks at the same time.
class VOS_EXPORT VosExcelReporting {
public:
    // In unit-testing mode report headers show "UnitTester" and "<<Date>> <<Time>>" instead of
    // the user's name and the current time, so that reports can be compared.
    void SetUnitTestingMode(bool on);
    bool UnitTestingMode() const;

    // Opens a report workbook: existingWB when given (unless its structure is protected),
    // otherwise, when asked to, the first open workbook tagged for this application, otherwise a
    // new one-sheet workbook whose sheet "_ReportPlaceholder_" goes when the first report sheet
    // is made. The workbook is activated.
    std::shared_ptr<VosExcelReportWorkbook> NewReportWorkbook(const std::shared_ptr<excel::Application>& xlApp,
                                                              const std::string& applicationIdentifier,
                                                              const std::shared_ptr<excel::Workbook>& existingWB = nullptr,
                                                              bool reusePreviouslyCreatedWorkbook = false,
                                                              int32_t DefaultLanguage = 9);

    // Whether the workbook or sheet was made by the library for that application, compared
    // without regard to case; an empty identifier matches any application.
    bool WorkbookHasCreationTag(const std::shared_ptr<excel::Workbook>& wb, const std::string& applicationIdentifier = "");
    bool WorksheetHasCreationTag(const std::shared_ptr<excel::Worksheet>& ws,
                                 const std::string& applicationIdentifier = "");

    // A hidden comment on the cell: the bold, underlined header text over the main text, in a
    // white 216 x 90 point box with a navy outline. It replaces the cell's comment, if any.
    std::shared_ptr<excel::Comment> AddComment(const std::shared_ptr<excel::Range>& p_CellRange,
                                               const std::string& p_HeaderText, const std::string& p_MainText);
};

}  // namespace vos
