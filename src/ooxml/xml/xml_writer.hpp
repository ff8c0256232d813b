#pragma once

#include "ooxml/xml/byte_sink.hpp"

#include <charconv>
#include <concepts>
#include <cstddef>
#include <memory>
#include <string_view>
#include <vector>

namespace ooxml {

// Streams XML into a ByteSink through a fixed buffer, with no document tree. Element and attribute
// names are not escaped and must outlive the element (string literals). Text and attribute values
// are UTF-8; invalid byte sequences become U+FFFD so the output is always well-formed.
class XmlWriter {
public:
    explicit XmlWriter(ByteSink& sink);
    XmlWriter(const XmlWriter&) = delete;
    XmlWriter& operator=(const XmlWriter&) = delete;

    // The XML declaration Excel writes at the top of every part.
    void Declaration();

    void StartElement(std::string_view name);
    void EndElement();
    // <name>text</name>, with the text escaped as SpreadsheetML strings are.
    void Element(std::string_view name, std::string_view text);

    void Attribute(std::string_view name, std::string_view value);
    void Attribute(std::string_view name, const char* value) { Attribute(name, std::string_view(value)); }
    void Attribute(std::string_view name, double value);
    template <std::integral T>
        requires(!std::same_as<T, bool>)
    void Attribute(std::string_view name, T value) {
        char digits[24];
        auto end = std::to_chars(digits, digits + sizeof digits, value).ptr;
        AttributeVerbatim(name, std::string_view(digits, static_cast<std::size_t>(end - digits)));
    }
    // An attribute whose value is known to need no escaping (cell references, numbers).
    void AttributeVerbatim(std::string_view name, std::string_view value);

    // Element content as SpreadsheetML strings store it: characters XML 1.0 cannot hold, and
    // carriage returns, become _xHHHH_ escapes, and a literal "_xHHHH_" keeps its meaning by
    // escaping its underscore (_x005F_).
    void Text(std::string_view text);
    // Element content outside SpreadsheetML (document properties), where _xHHHH_ means nothing:
    // characters XML cannot hold are dropped.
    void LiteralText(std::string_view text);
    // A number as element content, in the shortest form that reads back as the same double.
    void Number(double value);
    // Markup produced elsewhere by an XmlWriter (a serialised piece kept for sharing).
    void Raw(std::string_view xml);

    // Writes out buffered bytes. Must be called when the part is complete.
    void Flush();

private:
    enum class Escaping { SpreadsheetText, LiteralText, AttributeValue };

    void CloseStartTag();
    void Put(std::string_view bytes);
    void PutChar(char c);
    void PutEscaped(std::string_view text, Escaping escaping);
    void PutNumber(double value);

    ByteSink& sink_;
    std::unique_ptr<char[]> buffer_;
    std::size_t used_ = 0;
    std::vector<std::string_view> openElements_;
    bool startTagOpen_ = false;
};

}  // namespace ooxml
