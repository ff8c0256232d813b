#include "workbook/creation_tags.hpp"

#include "support/library_error.hpp"
#include "support/support_services.hpp"
#include "support/trim_blanks.hpp"

#include <excel/automation_error.hpp>
#include <excel/names.hpp>
#include <excel/sheets.hpp>
#include <excel/workbook.hpp>
#include <excel/worksheet.hpp>

namespace vos {

namespace {

// The identifier as a formula's text constant: ="MyApp", with embedded quotes doubled so that
// evaluating the name gives the identifier back.
std::string TextConstantFormula(const std::string& identifier) {
    // Appended, not "=" + ...: GCC 12 warns wrongly of overlapping copies there at -O3.
    return std::string("=").append(Support().Strings().Quoted(identifier, '"'));
}

std::string TrimmedIdentifierForTagging(const std::string& applicationIdentifier) {
    std::string identifier = TrimBlanks(applicationIdentifier);
    if (identifier.empty())
        RaiseLibraryError(error_code::EmptyArgument, "applicationIdentifier");
    return identifier;
}

// The text a tag name evaluates to on the sheet, or "" when the sheet cannot be had, there is no
// such name, or its value is not text-like.
template <class SheetSource>
std::string EvaluatedTag(SheetSource sheet, std::string_view tagName) {
    try {
        // An error value (#NAME? for a missing name) does not convert to text: no tag.
        const excel::Variant value = sheet()->Evaluate(std::string(tagName));
        return value.IsError() ? std::string() : value.ToString();
    } catch (const excel::AutomationError&) {
        return {};
    }
}

bool TagMatches(const std::string& tagValue, const std::string& applicationIdentifier) {
    if (tagValue.empty())
        return false;
    const std::string identifier = TrimBlanks(applicationIdentifier);
    return identifier.empty() || Support().Strings().EqualIgnoringCase(tagValue, identifier);
}

}  // namespace

void TagWorkbook(const std::shared_ptr<excel::Workbook>& wb, const std::string& applicationIdentifier) {
    if (!wb)
        RaiseLibraryError(error_code::MissingObject, "wb");
    const std::string identifier = TrimmedIdentifierForTagging(applicationIdentifier);
    wb->Names()->Add(std::string(WorkbookTagName), TextConstantFormula(identifier), true);
}

void TagWorksheet(const std::shared_ptr<excel::Worksheet>& ws, const std::string& applicationIdentifier) {
    if (!ws)
        RaiseLibraryError(error_code::MissingObject, "ws");
    const std::string identifier = TrimmedIdentifierForTagging(applicationIdentifier);
    const std::string qualifier = Support().Sheets().SheetNameQualifier(ws);
    ws->Parent()->Names()->Add(qualifier + std::string(WorksheetTagName), TextConstantFormula(identifier), true);
}

bool WorkbookHasTag(const std::shared_ptr<excel::Workbook>& wb, const std::string& applicationIdentifier) {
    if (!wb)
        RaiseLibraryError(error_code::MissingObject, "wb");
    const auto firstSheet = [&] { return wb->Worksheets()->Item(1); };
    return TagMatches(EvaluatedTag(firstSheet, WorkbookTagName), applicationIdentifier);
}

bool WorksheetHasTag(const std::shared_ptr<excel::Worksheet>& ws, const std::string& applicationIdentifier) {
    if (!ws)
        RaiseLibraryError(error_code::MissingObject, "ws");
    return TagMatches(EvaluatedTag([&] { return ws; }, WorksheetTagName), applicationIdentifier);
}

}  // namespace vos
