// The pull scanner under the worksheet reader: the same tokens whatever the size of the pieces the
// document arrives in, and PackageError(Corrupt) for XML that is not well formed.

#include "ooxml/package_error.hpp"
#include "ooxml/xml/xml_pull_scanner.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <string>

namespace {

using ooxml::XmlPullScanner;
using Token = XmlPullScanner::Token;

constexpr std::size_t ChunkSizes[] = {1, 7, 1 << 20};

ooxml::XmlByteSource ChunkedSource(std::string xml, std::size_t chunk) {
    return [xml = std::move(xml), chunk, at = std::size_t{0}](char* buffer, std::size_t size) mutable {
        const std::size_t count = std::min({chunk, size, xml.size() - at});
        std::memcpy(buffer, xml.data() + at, count);
        at += count;
        return count;
    };
}

// The tokens as "<local a=1 b=2>", "[text]" and "</local>", each with its depth.
std::string Transcript(const std::string& xml, std::size_t chunk) {
    XmlPullScanner scanner(ChunkedSource(xml, chunk), "test.xml");
    std::string transcript;
    for (Token token = scanner.Next(); token != Token::End; token = scanner.Next()) {
        transcript += std::to_string(scanner.Depth());
        if (token == Token::StartElement) {
            transcript.append("<").append(scanner.Name());
            for (const ooxml::XmlAttribute& attribute : scanner.Attributes()) {
                transcript.append(" ").append(attribute.localName).append("=").append(attribute.value);
            }
            transcript += ">";
        } else if (token == Token::EndElement) {
            transcript.append("</").append(scanner.LocalName()).append(">");
        } else {
            transcript.append("[").append(scanner.Text()).append("]");
        }
    }
    return transcript;
}

void ExpectTranscript(const std::string& xml, const std::string& expected) {
    for (const std::size_t chunk : ChunkSizes) {
        EXPECT_EQ(Transcript(xml, chunk), expected) << "pieces of " << chunk << " bytes";
    }
}

void ExpectCorrupt(const std::string& xml) {
    for (const std::size_t chunk : ChunkSizes) {
        try {
            Transcript(xml, chunk);
            ADD_FAILURE() << "read: " << xml;
        } catch (const ooxml::PackageError& error) {
            EXPECT_EQ(error.reason(), ooxml::PackageError::Reason::Corrupt) << xml;
            EXPECT_NE(std::string(error.what()).find("test.xml"), std::string::npos) << error.what();
        }
    }
}

TEST(PullScannerReaderTest, GivesElementsAttributesAndTextWhateverThePieces) {
    ExpectTranscript(
        "\xEF\xBB\xBF<?xml version=\"1.0\"?>\n<root a=\"1\" b = 'x>y'><!-- note --><c r=\"A1\"/>"
        "<v>1.5</v>\n</root>\n",
        "1<root a=1 b=x>y>2<c r=A1>1</c>2<v>2[1.5]1</v>1[\n]0</root>");
}

TEST(PullScannerReaderTest, DecodesEntitiesAndLineEndsInTextAndAttributes) {
    ExpectTranscript("<t v=\"&quot;&lt;&#65;&#x42;&gt;&quot;\">a &amp; b&#x1F600;&apos;\r\nc\rd</t>",
                     "1<t v=\"<AB>\">1[a & b\xF0\x9F\x98\x80'\nc\nd]0</t>");
}

TEST(PullScannerReaderTest, KeepsAnAmpersandThatStartsNoReference) {
    ExpectTranscript("<t>&unknown; &#xZZ; &#0; AT&T &#1114112;</t>",
                     "1<t>1[&unknown; &#xZZ; &#0; AT&T &#1114112;]0</t>");
}

TEST(PullScannerReaderTest, CdataIsTextAsWritten) {
    ExpectTranscript("<t><![CDATA[<b> & ]] ]]></t>", "1<t>1[<b> & ]] ]0</t>");
}

TEST(PullScannerReaderTest, PrefixedNamesHaveLocalNames) {
    XmlPullScanner scanner(ChunkedSource("<x:row x:r=\"3\"><x:c/></x:row>", 7), "test.xml");
    ASSERT_EQ(scanner.Next(), Token::StartElement);
    EXPECT_EQ(scanner.Name(), "x:row");
    EXPECT_EQ(scanner.LocalName(), "row");
    ASSERT_EQ(scanner.Attributes().size(), 1u);
    EXPECT_EQ(scanner.Attributes()[0].localName, "r");
    ExpectTranscript("<x:row x:r=\"3\"><x:c/></x:row>", "1<x:row r=3>2<x:c>1</c>0</row>");
}

TEST(PullScannerReaderTest, ReadsTokensLargerThanItsBuffer) {
    const std::string text(300000, 'z');
    const std::string value(100000, 'q');
    const std::string expected = "1<t a=" + value + ">1[" + text + "]0</t>";
    for (const std::size_t chunk : ChunkSizes) {
        // Compared as a flag: a failure would print a third of a megabyte twice.
        EXPECT_TRUE(Transcript("<t a=\"" + value + "\">" + text + "</t>", chunk) == expected) << chunk;
    }
}

TEST(PullScannerReaderTest, WalksChildrenAndCopiesOrSkipsElements) {
    const std::string xml =
        "<root><skip><deep>x</deep></skip><copy a=\"&amp;\"><i/>t</copy><text>a<b>b</b>c</text></root>";
    for (const std::size_t chunk : ChunkSizes) {
        XmlPullScanner scanner(ChunkedSource(xml, chunk), "test.xml");
        ASSERT_EQ(scanner.Next(), Token::StartElement);
        ASSERT_TRUE(scanner.NextChild(1));
        EXPECT_EQ(scanner.Name(), "skip");
        scanner.SkipElement();
        ASSERT_TRUE(scanner.NextChild(1));
        std::string copied;
        scanner.CopyElement(copied);
        EXPECT_EQ(copied, "<copy a=\"&amp;\"><i/>t</copy>");
        ASSERT_TRUE(scanner.NextChild(1));
        std::string text;
        scanner.ReadText(text);
        EXPECT_EQ(text, "abc");
        EXPECT_FALSE(scanner.NextChild(1));
        EXPECT_EQ(scanner.Next(), Token::End);
    }
}

TEST(PullScannerReaderTest, RefusesXmlThatIsNotWellFormed) {
    ExpectCorrupt("");
    ExpectCorrupt("   ");
    ExpectCorrupt("<a><b></a>");
    ExpectCorrupt("<a><b>");
    ExpectCorrupt("<a></b>");
    ExpectCorrupt("</a>");
    ExpectCorrupt("<a x=\"1></a>");
    ExpectCorrupt("<a x=1></a>");
    ExpectCorrupt("<a x></a>");
    ExpectCorrupt("<a x=\"1\"y=\"2\"></a>");
    ExpectCorrupt("<a><1/></a>");
    ExpectCorrupt("<a>< b/></a>");
    ExpectCorrupt("<a><b c=\"1\"");
    ExpectCorrupt("<a><!-- never closed </a>");
    ExpectCorrupt("<a><![CDATA[never closed</a>");
    ExpectCorrupt("<a/><b/>");
    ExpectCorrupt("text<a/>");
    ExpectCorrupt("<a/>text");
    ExpectCorrupt("<!DOCTYPE a [<!ENTITY e \"x\">]><a>&e;</a>");
    ExpectCorrupt(std::string("\xFF\xFE<\0a\0/\0>\0", 10));
}

}  // namespace
