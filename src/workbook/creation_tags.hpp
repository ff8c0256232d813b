#pragma once

#include <excel/fwd.hpp>

#include <memory>
#include <string>
#include <string_view>

namespace vos {

// Creation tags mark a workbook or sheet as made by the library for one application, so that a
// later run finds its workbook again and deletes only its own sheets. A tag is a visible defined
// name whose formula is the application identifier as a text constant, so it is saved with the
// workbook. The identifier is stored as given (trimmed) and matched without regard to case.
inline constexpr std::string_view WorkbookTagName = "VostrandReportWorkbookCreatedBy";
inline constexpr std::string_view WorksheetTagName = "VostrandReportWorksheetCreatedBy";

// Tags the workbook with a workbook-level name.
void TagWorkbook(const std::shared_ptr<excel::Workbook>& wb, const std::string& applicationIdentifier);
// Tags the sheet with a name local to it.
void TagWorksheet(const std::shared_ptr<excel::Worksheet>& ws, const std::string& applicationIdentifier);

// Whether the workbook or sheet carries a tag for that application; an empty identifier matches
// any application's tag. Excel failures while reading the tag count as no tag.
bool WorkbookHasTag(const std::shared_ptr<excel::Workbook>& wb, const std::string& applicationIdentifier);
bool WorksheetHasTag(const std::shared_ptr<excel::Worksheet>& ws, const std::string& applicationIdentifier);

}  // namespace vos
