#include "ooxml/carried/carried_attributes.hpp"

#include <algorithm>

namespace ooxml {

namespace {

bool Written(std::initializer_list<std::string_view> written, std::string_view name) {
    return std::find(written.begin(), written.end(), name) != written.end();
}

class StringWriter : public pugi::xml_writer {
public:
    explicit StringWriter(std::string& out) : out_(out) {}
    void write(const void* data, size_t size) override { out_.append(static_cast<const char*>(data), size); }

private:
    std::string& out_;
};

}  // namespace

std::vector<CarriedAttribute> AttributesExcept(pugi::xml_node element, std::initializer_list<std::string_view> written) {
    std::vector<CarriedAttribute> carried;
    for (const pugi::xml_attribute attribute : element.attributes()) {
        if (!Written(written, attribute.name())) {
            carried.emplace_back(attribute.name(), attribute.value());
        }
    }
    return carried;
}

std::vector<CarriedAttribute> AttributesExcept(const std::vector<XmlAttribute>& attributes,
                                               std::initializer_list<std::string_view> written) {
    std::vector<CarriedAttribute> carried;
    for (const XmlAttribute& attribute : attributes) {
        if (!Written(written, attribute.name)) {
            carried.emplace_back(attribute.name, attribute.value);
        }
    }
    return carried;
}

void WriteCarriedAttributes(XmlWriter& xml, const std::vector<CarriedAttribute>& attributes) {
    for (const auto& [name, value] : attributes) {
        xml.Attribute(name, value);
    }
}

std::string ElementMarkup(pugi::xml_node element) {
    std::string markup;
    StringWriter writer(markup);
    element.print(writer, "", pugi::format_raw | pugi::format_no_declaration, pugi::encoding_utf8);
    return markup;
}

std::string DocumentMarkup(const pugi::xml_document& document) {
    std::string markup;
    StringWriter writer(markup);
    document.save(writer, "", pugi::format_raw | pugi::format_no_declaration, pugi::encoding_utf8);
    return markup;
}

}  // namespace ooxml
