#include "ooxml/xml/xml_node_access.hpp"

#include <charconv>
#include <cmath>
#include <cstring>

namespace ooxml {

namespace {

std::string_view TrimBlanks(std::string_view text) {
    constexpr std::string_view blanks = " \t\r\n";
    const std::size_t first = text.find_first_not_of(blanks);
    if (first == std::string_view::npos) {
        return {};
    }
    return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

template <typename Number>
std::optional<Number> ParseWhole(std::string_view text) {
    text = TrimBlanks(text);
    if (!text.empty() && text.front() == '+') {
        text.remove_prefix(1);
    }
    Number value{};
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (text.empty() || error != std::errc() || end != text.data() + text.size()) {
        return std::nullopt;
    }
    return value;
}

}  // namespace

std::string_view LocalName(const char* qualifiedName) {
    const char* colon = std::strchr(qualifiedName, ':');
    return colon != nullptr ? std::string_view(colon + 1) : std::string_view(qualifiedName);
}

pugi::xml_node FirstChild(pugi::xml_node parent, std::string_view localName) {
    for (pugi::xml_node child = parent.first_child(); child; child = child.next_sibling()) {
        if (child.type() == pugi::node_element && LocalName(child) == localName) {
            return child;
        }
    }
    return {};
}

pugi::xml_attribute Attribute(pugi::xml_node node, std::string_view localName) {
    for (pugi::xml_attribute attribute = node.first_attribute(); attribute; attribute = attribute.next_attribute()) {
        if (LocalName(attribute.name()) == localName) {
            return attribute;
        }
    }
    return {};
}

std::optional<uint32_t> ParseUnsigned(std::string_view text) {
    return ParseWhole<uint32_t>(text);
}

std::optional<double> ParseDouble(std::string_view text) {
    const std::optional<double> value = ParseWhole<double>(text);
    if (!value || !std::isfinite(*value)) {
        return std::nullopt;
    }
    return value;
}

std::optional<bool> ParseBoolean(std::string_view text) {
    text = TrimBlanks(text);
    if (text == "1" || text == "true") {
        return true;
    }
    if (text == "0" || text == "false") {
        return false;
    }
    return std::nullopt;
}

std::string_view AttributeText(pugi::xml_node node, std::string_view localName) {
    return Attribute(node, localName).value();
}

bool AttributeBool(pugi::xml_node node, std::string_view localName, bool fallback) {
    return ParseBoolean(AttributeText(node, localName)).value_or(fallback);
}

std::optional<uint32_t> AttributeUnsigned(pugi::xml_node node, std::string_view localName) {
    return ParseUnsigned(AttributeText(node, localName));
}

std::optional<double> AttributeDouble(pugi::xml_node node, std::string_view localName) {
    return ParseDouble(AttributeText(node, localName));
}

}  // namespace ooxml
