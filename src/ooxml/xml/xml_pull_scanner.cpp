#include "ooxml/xml/xml_pull_scanner.hpp"

#include "ooxml/package_error.hpp"
#include "ooxml/xml/escaped_text_decoder.hpp"

#include <algorithm>
#include <charconv>
#include <cstring>

namespace ooxml {

namespace {

constexpr std::size_t InitialBufferSize = 64 * 1024;
constexpr std::string_view CdataStart = "<![CDATA[";
constexpr std::string_view CdataEnd = "]]>";
constexpr std::size_t LongestEntity = 12;  // "&#x0010FFFF;"
constexpr char32_t LastCodePoint = 0x10FFFF;

bool IsNameStart(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_' || c == ':' ||
           static_cast<unsigned char>(c) >= 0x80;
}

bool IsNameChar(char c) {
    return IsNameStart(c) || (c >= '0' && c <= '9') || c == '-' || c == '.';
}

std::size_t NameLength(std::string_view text) {
    if (text.empty() || !IsNameStart(text.front())) {
        return 0;
    }
    const auto end = std::find_if_not(text.begin() + 1, text.end(), IsNameChar);
    return static_cast<std::size_t>(end - text.begin());
}

std::string_view LocalPart(std::string_view name) {
    const std::size_t colon = name.find(':');
    return colon == std::string_view::npos ? name : name.substr(colon + 1);
}

// Blanks are skipped by hand: find_first_not_of looks each character up in the set with memchr,
// which made up a sixth of the time spent reading a large sheet.
bool IsBlank(char c) {
    return c == ' ' || c == '\t' || c == '\r' || c == '\n';
}

std::size_t SkipBlanks(std::string_view text, std::size_t at) {
    while (at < text.size() && IsBlank(text[at])) {
        ++at;
    }
    return at < text.size() ? at : std::string_view::npos;
}

// Appends the character of the reference at the front of text ("&amp;", "&#10;", "&#x41;") and
// returns its length; 0 when it is none, and the ampersand stands for itself.
std::size_t AppendEntity(std::string& out, std::string_view text) {
    const std::size_t semicolon = text.substr(0, LongestEntity).find(';');
    if (semicolon == std::string_view::npos) {
        return 0;
    }
    const std::string_view body = text.substr(1, semicolon - 1);
    constexpr std::pair<std::string_view, char> Named[] = {
        {"lt", '<'}, {"gt", '>'}, {"amp", '&'}, {"apos", '\''}, {"quot", '"'}};
    for (const auto& [entity, character] : Named) {
        if (body == entity) {
            out += character;
            return semicolon + 1;
        }
    }
    if (body.size() < 2 || body.front() != '#') {
        return 0;
    }
    const bool hex = body[1] == 'x';
    const std::string_view digits = body.substr(hex ? 2 : 1);
    uint32_t codePoint = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), codePoint, hex ? 16 : 10);
    if (digits.empty() || error != std::errc() || end != digits.data() + digits.size() || codePoint == 0 ||
        codePoint > LastCodePoint) {
        return 0;
    }
    AppendUtf8(out, codePoint);
    return semicolon + 1;
}

}  // namespace

XmlPullScanner::XmlPullScanner(XmlByteSource source, std::string_view partName)
    : source_(std::move(source)), partName_(partName), buffer_(InitialBufferSize) {
    constexpr std::string_view Utf8Mark = "\xEF\xBB\xBF";
    while (end_ < Utf8Mark.size() + 1 && Fill()) {
    }
    const std::string_view start(buffer_.data(), end_);
    if (start.starts_with(Utf8Mark)) {
        begin_ = Utf8Mark.size();
    } else if (start.size() >= 2 && (start[0] == '\0' || start[1] == '\0' || start.starts_with("\xFE\xFF") ||
                                     start.starts_with("\xFF\xFE"))) {
        ThrowCorrupt("text encoded otherwise than in UTF-8");
    }
}

void XmlPullScanner::ThrowCorrupt(const std::string& what) const {
    throw PackageError(PackageError::Reason::Corrupt, "Unparsable XML in " + partName_ + " at offset " +
                                                          std::to_string(discarded_ + begin_) + ": " + what);
}

std::string_view XmlPullScanner::LocalName() const {
    return LocalPart(name_);
}

// Keeps the bytes not yet scanned, moved to the front, and reads more after them; false when the
// document has ended.
bool XmlPullScanner::Fill() {
    if (sourceEnded_) {
        return false;
    }
    if (begin_ > 0) {
        std::memmove(buffer_.data(), buffer_.data() + begin_, end_ - begin_);
        discarded_ += begin_;
        end_ -= begin_;
        begin_ = 0;
    }
    if (end_ == buffer_.size()) {
        buffer_.resize(buffer_.size() * 2);
    }
    const std::size_t count = source_(buffer_.data() + end_, buffer_.size() - end_);
    if (count == 0) {
        sourceEnded_ = true;
        return false;
    }
    const std::size_t added = std::min(count, buffer_.size() - end_);
    if (std::memchr(buffer_.data() + end_, '\0', added) != nullptr) {
        end_ += added;
        ThrowCorrupt("a NUL character, which XML does not allow");
    }
    end_ += added;
    return true;
}

// Where delimiter starts, counted from the first unscanned byte, reading as far as needed; npos
// when the document ends first.
std::size_t XmlPullScanner::Find(std::string_view delimiter, std::size_t from) {
    for (;;) {
        const std::string_view available(buffer_.data() + begin_, end_ - begin_);
        const std::size_t at = available.find(delimiter, from);
        if (at != std::string_view::npos) {
            return at;
        }
        if (available.size() >= delimiter.size()) {
            from = std::max(from, available.size() - delimiter.size() + 1);
        }
        if (!Fill()) {
            return std::string_view::npos;
        }
    }
}

// Where the tag that starts at the first unscanned byte ends: its '>', which may also stand
// inside a quoted attribute value.
std::size_t XmlPullScanner::FindTagEnd() {
    char quote = 0;
    std::size_t at = 1;
    for (;;) {
        for (; begin_ + at < end_; ++at) {
            const char c = buffer_[begin_ + at];
            if (quote != 0) {
                quote = c == quote ? 0 : quote;
            } else if (c == '"' || c == '\'') {
                quote = c;
            } else if (c == '>') {
                return at;
            } else if (c == '<') {
                ThrowCorrupt("'<' inside a tag");
            }
        }
        if (!Fill()) {
            ThrowCorrupt("the document ends inside a tag");
        }
    }
}

std::string_view XmlPullScanner::Take(std::size_t length) {
    raw_ = std::string_view(buffer_.data() + begin_, length);
    begin_ += length;
    return raw_;
}

// The text with its entities decoded and its line ends made "\n"; the view lasts until the next
// token, as decoded_ was reserved to hold all of the token's decoded text.
std::string_view XmlPullScanner::Decode(std::string_view raw) {
    if (std::none_of(raw.begin(), raw.end(), [](char c) { return c == '&' || c == '\r'; })) {
        return raw;
    }
    const std::size_t start = decoded_.size();
    for (std::size_t i = 0; i < raw.size(); ++i) {
        const char c = raw[i];
        if (c == '\r') {
            decoded_ += '\n';
            i += i + 1 < raw.size() && raw[i + 1] == '\n' ? 1 : 0;
        } else if (c == '&') {
            const std::size_t length = AppendEntity(decoded_, raw.substr(i));
            if (length == 0) {
                decoded_ += '&';
            } else {
                i += length - 1;
            }
        } else {
            decoded_ += c;
        }
    }
    return std::string_view(decoded_).substr(start);
}

void XmlPullScanner::ScanStartTag(std::string_view tag) {
    std::string_view inner = tag.substr(1, tag.size() - 2);
    const bool empty = !inner.empty() && inner.back() == '/';
    if (empty) {
        inner.remove_suffix(1);
    }
    std::size_t at = NameLength(inner);
    if (at == 0) {
        ThrowCorrupt("a tag without a name");
    }
    if (rootSeen_ && openStarts_.empty()) {
        ThrowCorrupt("a second root element");
    }
    rootSeen_ = true;
    name_ = inner.substr(0, at);
    attributes_.clear();
    decoded_.clear();
    decoded_.reserve(inner.size());
    for (;;) {
        const std::size_t start = SkipBlanks(inner, at);
        if (start == std::string_view::npos) {
            break;
        }
        const std::size_t nameLength = start > at ? NameLength(inner.substr(start)) : 0;
        const std::size_t equals = SkipBlanks(inner, start + nameLength);
        const std::size_t quote = equals == std::string_view::npos ? equals : SkipBlanks(inner, equals + 1);
        if (nameLength == 0 || equals == std::string_view::npos || inner[equals] != '=' ||
            quote == std::string_view::npos || (inner[quote] != '"' && inner[quote] != '\'')) {
            ThrowCorrupt("a malformed attribute");
        }
        const std::size_t close = inner.find(inner[quote], quote + 1);
        if (close == std::string_view::npos) {
            ThrowCorrupt("an unterminated attribute value");
        }
        const std::string_view name = inner.substr(start, nameLength);
        attributes_.push_back({name, LocalPart(name), Decode(inner.substr(quote + 1, close - quote - 1))});
        at = close + 1;
    }
    openStarts_.push_back(openNames_.size());
    openNames_ += name_;
    pendingEnd_ = empty;
}

void XmlPullScanner::ScanEndTag(std::string_view tag) {
    std::string_view name = tag.substr(2, tag.size() - 3);
    while (!name.empty() && IsBlank(name.back())) {
        name.remove_suffix(1);
    }
    if (openStarts_.empty() || std::string_view(openNames_).substr(openStarts_.back()) != name) {
        ThrowCorrupt("an end tag that matches no start tag");
    }
    name_ = name;
    openNames_.resize(openStarts_.back());
    openStarts_.pop_back();
}

// Scans the markup at the first unscanned byte; true when it is a token (an element's start or
// end, CDATA text), false when it is passed over (a comment, a processing instruction).
bool XmlPullScanner::ScanMarkup() {
    while (end_ - begin_ < CdataStart.size() && Fill()) {
    }
    const std::string_view ahead(buffer_.data() + begin_, end_ - begin_);
    const auto passUntil = [&](std::string_view delimiter, std::size_t from) {
        const std::size_t at = Find(delimiter, from);
        if (at == std::string_view::npos) {
            ThrowCorrupt("the document ends inside markup");
        }
        return Take(at + delimiter.size());
    };
    if (ahead.starts_with("</")) {
        ScanEndTag(passUntil(">", 2));
        token_ = Token::EndElement;
    } else if (ahead.starts_with("<?")) {
        passUntil("?>", 2);
        return false;
    } else if (ahead.starts_with("<!--")) {
        passUntil("-->", 4);
        return false;
    } else if (ahead.starts_with(CdataStart)) {
        if (openStarts_.empty()) {
            ThrowCorrupt("CDATA outside the root element");
        }
        const std::string_view section = passUntil(CdataEnd, CdataStart.size());
        text_ = section.substr(CdataStart.size(), section.size() - CdataStart.size() - CdataEnd.size());
        token_ = Token::Text;
    } else if (ahead.starts_with("<!")) {
        ThrowCorrupt("a document type declaration, which is not read");
    } else {
        ScanStartTag(Take(FindTagEnd() + 1));
        token_ = Token::StartElement;
    }
    return true;
}

XmlPullScanner::Token XmlPullScanner::Next() {
    if (pendingEnd_) {
        pendingEnd_ = false;
        raw_ = {};
        openNames_.resize(openStarts_.back());
        openStarts_.pop_back();
        return token_ = Token::EndElement;
    }
    for (;;) {
        if (begin_ == end_ && !Fill()) {
            if (!openStarts_.empty() || !rootSeen_) {
                ThrowCorrupt(rootSeen_ ? "the document ends inside an element" : "no root element");
            }
            raw_ = {};
            return token_ = Token::End;
        }
        if (buffer_[begin_] == '<') {
            if (ScanMarkup()) {
                return token_;
            }
            continue;
        }
        const std::size_t length = Find("<", 0);
        const std::string_view raw = Take(length == std::string_view::npos ? end_ - begin_ : length);
        if (openStarts_.empty()) {
            if (!std::all_of(raw.begin(), raw.end(), IsBlank)) {
                ThrowCorrupt("text outside the root element");
            }
            continue;
        }
        decoded_.clear();
        decoded_.reserve(raw.size());
        text_ = Decode(raw);
        return token_ = Token::Text;
    }
}

bool XmlPullScanner::NextChild(std::size_t depth) {
    for (;;) {
        switch (Next()) {
            case Token::StartElement:
                if (Depth() == depth + 1) {
                    return true;
                }
                break;
            case Token::EndElement:
                if (Depth() < depth) {
                    return false;
                }
                break;
            case Token::Text:
                break;
            case Token::End:
                return false;
        }
    }
}

void XmlPullScanner::ReadText(std::string& text) {
    text.clear();
    const std::size_t depth = Depth();
    for (;;) {
        const Token token = Next();
        if (token == Token::Text) {
            text += text_;
        } else if (token == Token::End || (token == Token::EndElement && Depth() < depth)) {
            return;
        }
    }
}

void XmlPullScanner::PassElement(std::string* xml) {
    const std::size_t depth = Depth();
    for (;;) {
        if (xml != nullptr) {
            xml->append(raw_);
        }
        const Token token = token_;
        if (token == Token::End || (token == Token::EndElement && Depth() < depth)) {
            return;
        }
        Next();
    }
}

void XmlPullScanner::CopyElement(std::string& xml) {
    PassElement(&xml);
}

void XmlPullScanner::SkipElement() {
    PassElement(nullptr);
}

}  // namespace ooxml
