#pragma once

#include "ooxml/document/workbook_document.hpp"
#include "ooxml/xml/xml_writer.hpp"

#include <string_view>

namespace ooxml {

inline constexpr std::string_view kCorePropertiesContentType = "application/vnd.openxmlformats-package.core-properties+xml";
inline constexpr std::string_view kCorePropertiesRelationshipType =
    "http://schemas.openxmlformats.org/package/2006/relationships/metadata/core-properties";
inline constexpr std::string_view kAppPropertiesContentType =
    "application/vnd.openxmlformats-officedocument.extended-properties+xml";
inline constexpr std::string_view kAppPropertiesRelationshipType =
    "http://schemas.openxmlformats.org/officeDocument/2006/relationships/extended-properties";

// The name a package gives as the application that wrote it.
inline constexpr std::string_view kApplicationName = "VosExcelReporting";

// Writes docProps/core.xml: author, last editor, creation and modification times (UTC); for an
// opened workbook its own properties (carried) instead of the author and creation time.
void WriteCorePropertiesPart(XmlWriter& xml, const DocumentProperties& properties,
                             const CarriedMarkup* carried = nullptr);

// Writes docProps/app.xml: the writing application and the list of worksheets.
void WriteAppPropertiesPart(XmlWriter& xml, const WorkbookDocument& document);

}  // namespace ooxml
