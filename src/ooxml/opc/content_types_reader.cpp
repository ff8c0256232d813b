#include "ooxml/opc/content_types_reader.hpp"

#include "ooxml/opc/percent_decoder.hpp"
#include "ooxml/package_error.hpp"
#include "ooxml/xml/xml_node_access.hpp"
#include "ooxml/xml/xml_part_parser.hpp"
#include "ooxml/zip/zip_archive_reader.hpp"

#include <algorithm>
#include <optional>

namespace ooxml {

namespace {

constexpr std::string_view ContentTypesPartName = "[Content_Types].xml";

// Part names and extensions compare without regard to ASCII case.
std::string LowerCase(std::string_view text) {
    std::string lower(text);
    std::transform(lower.begin(), lower.end(), lower.begin(),
                   [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; });
    return lower;
}

}  // namespace

ContentTypeMap::ContentTypeMap(const ZipArchiveReader& archive) {
    std::optional<std::string> xml = archive.Read(ContentTypesPartName);
    if (!xml) {
        throw PackageError(PackageError::Reason::NotAPackage, "The package declares no content types");
    }
    pugi::xml_document document;
    ParseXmlPart(document, *xml, ContentTypesPartName);
    const pugi::xml_node types = document.document_element();
    ForEachChild(types, "Default", [&](pugi::xml_node node) {
        byExtension_.emplace(LowerCase(AttributeText(node, "Extension")), AttributeText(node, "ContentType"));
    });
    ForEachChild(types, "Override", [&](pugi::xml_node node) {
        std::string_view partName = AttributeText(node, "PartName");
        if (!partName.empty() && partName.front() == '/') {
            partName.remove_prefix(1);
        }
        byPartName_.emplace(LowerCase(PercentDecoded(partName)), AttributeText(node, "ContentType"));
    });
}

std::string ContentTypeMap::Of(std::string_view partName) const {
    const std::string key = LowerCase(partName);
    if (const auto found = byPartName_.find(key); found != byPartName_.end()) {
        return found->second;
    }
    const std::size_t dot = key.rfind('.');
    const std::size_t slash = key.rfind('/');
    if (dot != std::string::npos && (slash == std::string::npos || dot > slash)) {
        if (const auto found = byExtension_.find(key.substr(dot + 1)); found != byExtension_.end()) {
            return found->second;
        }
    }
    return {};
}

std::string ContentTypeMap::FirstPartOf(std::string_view contentType) const {
    for (const auto& [partName, type] : byPartName_) {
        if (type == contentType) {
            return partName;
        }
    }
    return {};
}

}  // namespace ooxml
