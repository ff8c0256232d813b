#include "ooxml/opc/content_types_part.hpp"

namespace ooxml {

void ContentTypes::AddDefault(std::string_view extension, std::string_view contentType) {
    defaults_.push_back({std::string(extension), std::string(contentType)});
}

void ContentTypes::AddOverride(std::string_view partPath, std::string_view contentType) {
    // Appended, not "/" + std::string(...): GCC 12 warns wrongly of overlapping copies there at -O3.
    overrides_.push_back({std::string("/").append(partPath), std::string(contentType)});
}

void ContentTypes::AddPart(std::string_view partPath, std::string_view contentType) {
    const std::size_t dot = partPath.rfind('.');
    const std::string_view extension = dot == std::string_view::npos ? std::string_view() : partPath.substr(dot + 1);
    for (const Mapping& mapping : defaults_) {
        if (mapping.key == extension && mapping.contentType == contentType) {
            return;
        }
    }
    AddOverride(partPath, contentType);
}

void ContentTypes::Write(XmlWriter& xml) const {
    xml.Declaration();
    xml.StartElement("Types");
    xml.Attribute("xmlns", "http://schemas.openxmlformats.org/package/2006/content-types");
    for (const Mapping& mapping : defaults_) {
        xml.StartElement("Default");
        xml.Attribute("Extension", mapping.key);
        xml.Attribute("ContentType", mapping.contentType);
        xml.EndElement();
    }
    for (const Mapping& mapping : overrides_) {
        xml.StartElement("Override");
        xml.Attribute("PartName", mapping.key);
        xml.Attribute("ContentType", mapping.contentType);
        xml.EndElement();
    }
    xml.EndElement();
}

}  // namespace ooxml
