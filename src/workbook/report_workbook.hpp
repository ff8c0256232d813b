#pragma once

#include "support/report_theme_colors.hpp"
#include "workbook/theme_table.hpp"

#include <vos/vos_excel_report_workbook.hpp>

#include <cstdint>
#include <memory>
#include <string>

namespace vos {

// The report workbook behind VosExcelReportWorkbook, with the members the library's other
// classes call.
class ReportWorkbook final : public VosExcelReportWorkbook,
                             public ReportThemeColors,
                             public std::enable_shared_from_this<ReportWorkbook> {
public:
    void InitializeWorkbook(const std::shared_ptr<excel::Workbook>& workbook, const std::string& applicationIdentifier,
                            int32_t defaultLanguage);

    std::shared_ptr<excel::Workbook> ExcelWorkbook() const override;
    std::string applicationIdentifier() const override;
    int32_t DefaultLanguage() const override;
    bool UseThemes() const override;
    void SetUseThemes(bool useThemes) override;
    std::shared_ptr<VosExcelReportWorksheet> NewReportWorksheet(const std::string& worksheetName) override;
    void DeleteReportWorksheets(bool deleteSheetsCreatedByAllVostrandApplications) override;
    void ActivateFirstWorksheetCreated() override;

    int32_t ThemeColorFor(int32_t propertyType, bool objectThemeColor) const override;
    float ThemeTintAndShadeFor(int32_t propertyType) const override;

    bool HasPlaceholderSheet() const;
    std::shared_ptr<excel::Worksheet> AddPlaceholderSheet();
    // Deletes the placeholder sheet if there is one; any Excel failure, as when it is the only
    // sheet left, is ignored.
    void RemovePlaceholderSheet();

private:
    std::string ReportSheetName(const std::string& wantedName) const;
    std::shared_ptr<excel::Worksheet> AddSheetAtEnd();

    std::shared_ptr<excel::Workbook> excelWorkbook_;
    std::string applicationIdentifier_;
    int32_t defaultLanguage_ = 0;
    std::shared_ptr<excel::Worksheet> firstWorksheetCreated_;
    ThemeTable themes_;
    bool useThemes_ = false;
};

}  // namespace vos
