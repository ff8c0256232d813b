#include "ooxml/xml/xml_writer.hpp"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstring>
#include <system_error>

namespace ooxml {

namespace {

constexpr std::size_t kBufferSize = 64 * 1024;
constexpr std::string_view kReplacementCharacter = "\xEF\xBF\xBD";
// Longest positional number written; longer ones ("1e-300") are written with an exponent.
constexpr std::ptrdiff_t kPositionalNumberLimit = 20;

bool IsHexDigit(char c) {
    return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'f') || (c >= 'A' && c <= 'F');
}

// "_xHHHH_" at position: a reader would decode it, so a literal one must be protected.
bool IsEscapeSequenceAt(std::string_view text, std::size_t position) {
    if (position + 7 > text.size() || text[position + 1] != 'x' || text[position + 6] != '_') {
        return false;
    }
    for (std::size_t i = position + 2; i < position + 6; ++i) {
        if (!IsHexDigit(text[i])) {
            return false;
        }
    }
    return true;
}

// Length and code point of the UTF-8 sequence at position, or length 0 when it is malformed
// (truncated, overlong, a surrogate or beyond U+10FFFF).
struct Utf8Sequence {
    std::size_t length = 0;
    char32_t codePoint = 0;
};

Utf8Sequence DecodeUtf8(std::string_view text, std::size_t position) {
    const auto lead = static_cast<unsigned char>(text[position]);
    std::size_t length = 0;
    char32_t codePoint = 0;
    char32_t minimum = 0;
    if (lead >= 0xC2 && lead <= 0xDF) {
        length = 2, codePoint = lead & 0x1Fu, minimum = 0x80;
    } else if (lead >= 0xE0 && lead <= 0xEF) {
        length = 3, codePoint = lead & 0x0Fu, minimum = 0x800;
    } else if (lead >= 0xF0 && lead <= 0xF4) {
        length = 4, codePoint = lead & 0x07u, minimum = 0x10000;
    } else {
        return {};
    }
    if (position + length > text.size()) {
        return {};
    }
    for (std::size_t i = 1; i < length; ++i) {
        const auto next = static_cast<unsigned char>(text[position + i]);
        if ((next & 0xC0u) != 0x80u) {
            return {};
        }
        codePoint = (codePoint << 6) | (next & 0x3Fu);
    }
    if (codePoint < minimum || codePoint > 0x10FFFF || (codePoint >= 0xD800 && codePoint <= 0xDFFF)) {
        return {};
    }
    return {length, codePoint};
}

// The _xHHHH_ form of a code point below U+10000.
std::string_view ExcelEscape(char32_t codePoint, char (&out)[8]) {
    static constexpr char kHex[] = "0123456789ABCDEF";
    out[0] = '_';
    out[1] = 'x';
    for (int i = 0; i < 4; ++i) {
        out[2 + i] = kHex[(codePoint >> (12 - 4 * i)) & 0xFu];
    }
    out[6] = '_';
    return std::string_view(out, 7);
}

}  // namespace

XmlWriter::XmlWriter(ByteSink& sink) : sink_(sink), buffer_(std::make_unique<char[]>(kBufferSize)) {}

void XmlWriter::Declaration() {
    Put("<?xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"yes\"?>\r\n");
}

void XmlWriter::StartElement(std::string_view name) {
    CloseStartTag();
    PutChar('<');
    Put(name);
    openElements_.push_back(name);
    startTagOpen_ = true;
}

void XmlWriter::EndElement() {
    const std::string_view name = openElements_.back();
    openElements_.pop_back();
    if (startTagOpen_) {
        Put("/>");
        startTagOpen_ = false;
        return;
    }
    Put("</");
    Put(name);
    PutChar('>');
}

void XmlWriter::Element(std::string_view name, std::string_view text) {
    StartElement(name);
    Text(text);
    EndElement();
}

void XmlWriter::Attribute(std::string_view name, std::string_view value) {
    PutChar(' ');
    Put(name);
    Put("=\"");
    PutEscaped(value, Escaping::AttributeValue);
    PutChar('"');
}

void XmlWriter::Attribute(std::string_view name, double value) {
    PutChar(' ');
    Put(name);
    Put("=\"");
    PutNumber(value);
    PutChar('"');
}

void XmlWriter::AttributeVerbatim(std::string_view name, std::string_view value) {
    PutChar(' ');
    Put(name);
    Put("=\"");
    Put(value);
    PutChar('"');
}

void XmlWriter::Text(std::string_view text) {
    CloseStartTag();
    PutEscaped(text, Escaping::SpreadsheetText);
}

void XmlWriter::LiteralText(std::string_view text) {
    CloseStartTag();
    PutEscaped(text, Escaping::LiteralText);
}

void XmlWriter::Number(double value) {
    CloseStartTag();
    PutNumber(value);
}

void XmlWriter::Raw(std::string_view xml) {
    CloseStartTag();
    Put(xml);
}

void XmlWriter::Flush() {
    if (used_ > 0) {
        sink_.Write(buffer_.get(), used_);
        used_ = 0;
    }
}

void XmlWriter::CloseStartTag() {
    if (startTagOpen_) {
        PutChar('>');
        startTagOpen_ = false;
    }
}

void XmlWriter::Put(std::string_view bytes) {
    if (bytes.size() > kBufferSize - used_) {
        Flush();
        if (bytes.size() > kBufferSize) {
            sink_.Write(bytes.data(), bytes.size());
            return;
        }
    }
    std::memcpy(buffer_.get() + used_, bytes.data(), bytes.size());
    used_ += bytes.size();
}

void XmlWriter::PutChar(char c) {
    if (used_ == kBufferSize) {
        Flush();
    }
    buffer_[used_++] = c;
}

void XmlWriter::PutNumber(double value) {
    if (std::isnan(value)) {
        Put("NaN");
    } else if (std::isinf(value)) {
        Put(value > 0 ? "INF" : "-INF");
    } else {
        // The shortest form that reads back as the same double, written positionally when that is
        // not much longer: "400000" rather than "4e+05", which readers take for a fraction.
        char digits[32];
        auto [end, error] = std::to_chars(digits, digits + kPositionalNumberLimit, value, std::chars_format::fixed);
        if (error != std::errc{}) {
            end = std::to_chars(digits, digits + sizeof digits, value).ptr;
            // Excel writes the exponent with a capital: "1E+300", "5.2192066805845511E-2".
            std::replace(digits, end, 'e', 'E');
        }
        Put(std::string_view(digits, static_cast<std::size_t>(end - digits)));
    }
}

void XmlWriter::PutEscaped(std::string_view text, Escaping escaping) {
    const bool inAttribute = escaping == Escaping::AttributeValue;
    const bool spreadsheetText = escaping == Escaping::SpreadsheetText;
    char escape[8];
    std::size_t runStart = 0;
    std::size_t i = 0;
    while (i < text.size()) {
        const auto c = static_cast<unsigned char>(text[i]);
        const bool plain = c >= 0x20 && c < 0x80 && c != '<' && c != '>' && c != '&' && c != '"' && c != '_';
        if (plain) {
            ++i;
            continue;
        }
        Put(text.substr(runStart, i - runStart));
        std::size_t consumed = 1;
        if (c == '<') {
            Put("&lt;");
        } else if (c == '>') {
            Put("&gt;");
        } else if (c == '&') {
            Put("&amp;");
        } else if (c == '"') {
            Put(inAttribute ? std::string_view("&quot;") : std::string_view("\""));
        } else if (c == '_') {
            Put(spreadsheetText && IsEscapeSequenceAt(text, i) ? std::string_view("_x005F_") : std::string_view("_"));
        } else if (c == '\t' || c == '\n') {
            // Attribute values would have them normalised to spaces by any reader.
            Put(!inAttribute ? text.substr(i, 1) : c == '\t' ? std::string_view("&#9;") : std::string_view("&#10;"));
        } else if (c < 0x20) {
            if (escaping != Escaping::LiteralText) {
                Put(ExcelEscape(c, escape));
            } else if (c == '\r') {
                Put("&#13;");
            }
        } else {
            const Utf8Sequence sequence = DecodeUtf8(text, i);
            if (sequence.length == 0) {
                Put(kReplacementCharacter);
            } else if (sequence.codePoint == 0xFFFE || sequence.codePoint == 0xFFFF) {
                if (escaping != Escaping::LiteralText) {
                    Put(ExcelEscape(sequence.codePoint, escape));
                }
                consumed = sequence.length;
            } else {
                Put(text.substr(i, sequence.length));
                consumed = sequence.length;
            }
        }
        i += consumed;
        runStart = i;
    }
    Put(text.substr(runStart));
}

}  // namespace ooxml
