#include "ooxml/properties/document_properties_part.hpp"

#include <ctime>
#include <string>
#include "ooxml/carried/carried_attributes.hpp"

namespace ooxml {

namespace {

std::string W3cUtcTime(std::time_t time) {
    std::tm utc{};
#ifdef _WIN32
    gmtime_s(&utc, &time);
#else
    gmtime_r(&time, &utc);
#endif
    char text[32];
    const std::size_t length = std::strftime(text, sizeof text, "%Y-%m-%dT%H:%M:%SZ", &utc);
    return std::string(text, length);
}

void OptionalText(XmlWriter& xml, std::string_view element, const std::string& text) {
    if (!text.empty()) {
        xml.StartElement(element);
        xml.LiteralText(text);
        xml.EndElement();
    }
}

void OptionalTime(XmlWriter& xml, std::string_view element, const std::optional<std::time_t>& time) {
    if (time) {
        xml.StartElement(element);
        xml.Attribute("xsi:type", "dcterms:W3CDTF");
        xml.LiteralText(W3cUtcTime(*time));
        xml.EndElement();
    }
}

void TextElement(XmlWriter& xml, std::string_view element, std::string_view text) {
    xml.StartElement(element);
    xml.LiteralText(text);
    xml.EndElement();
}

}  // namespace

// An opened workbook keeps its creator, creation time and the rest: only the last author and
// the modification time are the save's.
void WriteCorePropertiesPart(XmlWriter& xml, const DocumentProperties& properties, const CarriedMarkup* carried) {
    xml.Declaration();
    xml.StartElement("cp:coreProperties");
    xml.Attribute("xmlns:cp", "http://schemas.openxmlformats.org/package/2006/metadata/core-properties");
    xml.Attribute("xmlns:dc", "http://purl.org/dc/elements/1.1/");
    xml.Attribute("xmlns:dcterms", "http://purl.org/dc/terms/");
    xml.Attribute("xmlns:dcmitype", "http://purl.org/dc/dcmitype/");
    xml.Attribute("xmlns:xsi", "http://www.w3.org/2001/XMLSchema-instance");
    if (carried == nullptr) {
        OptionalText(xml, "dc:creator", properties.creator);
        OptionalText(xml, "cp:lastModifiedBy", properties.lastModifiedBy);
        OptionalTime(xml, "dcterms:created", properties.created);
        OptionalTime(xml, "dcterms:modified", properties.modified);
        xml.EndElement();
        return;
    }
    WriteCarriedAttributes(xml, carried->rootAttributes);
    bool lastModifiedByWritten = false;
    bool modifiedWritten = false;
    for (const CarriedElement& element : carried->elements) {
        if (!element.xml.empty()) {
            xml.Raw(element.xml);
        } else if (element.name == "lastModifiedBy" && !lastModifiedByWritten) {
            OptionalText(xml, "cp:lastModifiedBy", properties.lastModifiedBy);
            lastModifiedByWritten = true;
        } else if (element.name == "modified" && !modifiedWritten) {
            OptionalTime(xml, "dcterms:modified", properties.modified);
            modifiedWritten = true;
        }
    }
    if (!lastModifiedByWritten) {
        OptionalText(xml, "cp:lastModifiedBy", properties.lastModifiedBy);
    }
    if (!modifiedWritten) {
        OptionalTime(xml, "dcterms:modified", properties.modified);
    }
    xml.EndElement();
}

void WriteAppPropertiesPart(XmlWriter& xml, const WorkbookDocument& document) {
    xml.Declaration();
    xml.StartElement("Properties");
    xml.Attribute("xmlns", "http://schemas.openxmlformats.org/officeDocument/2006/extended-properties");
    xml.Attribute("xmlns:vt", "http://schemas.openxmlformats.org/officeDocument/2006/docPropsVTypes");
    if (document.carried) {
        WriteCarriedAttributes(xml, document.carried->appProperties.rootAttributes);
    }
    TextElement(xml, "Application", kApplicationName);
    TextElement(xml, "DocSecurity", "0");
    TextElement(xml, "ScaleCrop", "false");

    xml.StartElement("HeadingPairs");
    xml.StartElement("vt:vector");
    xml.Attribute("size", 2);
    xml.Attribute("baseType", "variant");
    xml.StartElement("vt:variant");
    TextElement(xml, "vt:lpstr", "Worksheets");
    xml.EndElement();
    xml.StartElement("vt:variant");
    TextElement(xml, "vt:i4", std::to_string(document.sheets.size()));
    xml.EndElement();
    xml.EndElement();
    xml.EndElement();

    xml.StartElement("TitlesOfParts");
    xml.StartElement("vt:vector");
    xml.Attribute("size", document.sheets.size());
    xml.Attribute("baseType", "lpstr");
    for (const SheetDocument& sheet : document.sheets) {
        TextElement(xml, "vt:lpstr", sheet.name);
    }
    xml.EndElement();
    xml.EndElement();

    TextElement(xml, "LinksUpToDate", "false");
    TextElement(xml, "SharedDoc", "false");
    TextElement(xml, "HyperlinksChanged", "false");
    if (document.carried) {
        // The elements written above keep only their places in the opened part.
        for (const CarriedElement& element : document.carried->appProperties.elements) {
            xml.Raw(element.xml);
        }
    }
    xml.EndElement();
}

}  // namespace ooxml
