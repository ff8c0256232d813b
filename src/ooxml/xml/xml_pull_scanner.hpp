#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace ooxml {

// Fills buffer with up to size bytes of a document and returns how many; 0 at its end.
using XmlByteSource = std::function<std::size_t(char* buffer, std::size_t size)>;

struct XmlAttribute {
    std::string_view name;       // as written: "xmlns:x14ac"
    std::string_view localName;  // without its prefix: "x:r" is "r"
    std::string_view value;      // entities decoded, line ends normalised
};

// Reads a UTF-8 XML document token by token while its bytes arrive in pieces of any size, holding
// no more of it than the token at hand, so a part of any size is read in little memory. Checks
// that the document is well formed (tags nest and close, attributes are quoted) and throws
// PackageError(Corrupt) where it is not. Comments and processing instructions are passed over;
// a CDATA section is text. Names, attributes and text stay valid until the next call of Next.
class XmlPullScanner {
public:
    enum class Token : uint8_t { StartElement, EndElement, Text, End };

    XmlPullScanner(XmlByteSource source, std::string_view partName);

    // An empty element (<c/>) gives a start and an end.
    Token Next();

    // Of a start or end element.
    std::string_view Name() const { return name_; }
    std::string_view LocalName() const;
    // Of a start element.
    const std::vector<XmlAttribute>& Attributes() const { return attributes_; }
    // Of text: entities decoded, line ends normalised.
    std::string_view Text() const { return text_; }
    // Elements open after the token: a start element counts itself, an end element no longer does.
    std::size_t Depth() const { return openStarts_.size(); }

    // After the start of an element: moves to its next child element and returns true, or past
    // its end and returns false. depth is the element's own.
    bool NextChild(std::size_t depth);
    // After the start of an element: its text (of its children too), and past its end.
    void ReadText(std::string& text);
    // After the start of an element: appends its markup through its end to xml.
    void CopyElement(std::string& xml);
    // After the start of an element: moves past its end.
    void SkipElement();

private:
    [[noreturn]] void ThrowCorrupt(const std::string& what) const;
    bool Fill();
    std::size_t Find(std::string_view delimiter, std::size_t from);
    std::size_t FindTagEnd();
    std::string_view Take(std::size_t length);
    std::string_view Decode(std::string_view raw);
    void ScanStartTag(std::string_view tag);
    void ScanEndTag(std::string_view tag);
    bool ScanMarkup();
    void PassElement(std::string* xml);

    XmlByteSource source_;
    std::string partName_;
    std::vector<char> buffer_;
    std::size_t begin_ = 0;      // the first byte not yet scanned
    std::size_t end_ = 0;        // past the last byte read
    std::size_t discarded_ = 0;  // bytes dropped from the front of the buffer, for error offsets
    bool sourceEnded_ = false;
    bool rootSeen_ = false;
    bool pendingEnd_ = false;  // the end of an empty element is still to come
    Token token_ = Token::End;
    std::string_view raw_;  // the token's markup
    std::string_view name_;
    std::string_view text_;
    std::vector<XmlAttribute> attributes_;
    std::string decoded_;    // text and attribute values that held entities or carriage returns
    std::string openNames_;  // qualified names of the open elements, one after another
    std::vector<std::size_t> openStarts_;
};

}  // namespace ooxml
