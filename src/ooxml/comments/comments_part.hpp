#pragma once

#include "ooxml/document/workbook_document.hpp"
#include "ooxml/xml/xml_writer.hpp"

#include <string_view>

namespace ooxml {

inline constexpr std::string_view kCommentsContentType =
    "application/vnd.openxmlformats-officedocument.spreadsheetml.comments+xml";
inline constexpr std::string_view kCommentsRelationshipType =
    "http://schemas.openxmlformats.org/officeDocument/2006/relationships/comments";

// Writes a sheet's comments part (xl/commentsN.xml): each author once, in the order they first
// appear, then the comments in the sheet's order with their text and its runs. Throws
// PackageError (WriteFailed) for a comment on a cell outside the sheet.
void WriteCommentsPart(XmlWriter& xml, const SheetDocument& sheet);

}  // namespace ooxml
