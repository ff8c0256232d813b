#include "ooxml/writer_test_support.hpp"
#include "ooxml/xml/xml_writer.hpp"

#include <gtest/gtest.h>

#include <cstring>
#include <limits>

namespace {

using namespace ooxml;
using writer_test::ParseXml;
using writer_test::WriteToString;

std::string TextOf(std::string_view text) {
    return WriteToString([text](XmlWriter& xml) { xml.Element("t", text); });
}

TEST(XmlWriter, ClosesEmptyElementsAndNestsOthers) {
    const std::string xml = WriteToString([](XmlWriter& writer) {
        writer.StartElement("a");
        writer.Attribute("n", 42);
        writer.StartElement("b");
        writer.EndElement();
        writer.Element("c", "text");
        writer.EndElement();
    });
    EXPECT_EQ(xml, "<a n=\"42\"><b/><c>text</c></a>");
}

TEST(XmlWriter, EscapesMarkupInTextAndAttributes) {
    const std::string xml = WriteToString([](XmlWriter& writer) {
        writer.StartElement("a");
        writer.Attribute("v", "<\"&'>\t\n");
        writer.Text("<&>\"");
        writer.EndElement();
    });
    EXPECT_EQ(xml, "<a v=\"&lt;&quot;&amp;'&gt;&#9;&#10;\">&lt;&amp;&gt;\"</a>");
    auto document = ParseXml(xml);
    EXPECT_STREQ(document->child("a").attribute("v").value(), "<\"&'>\t\n");
    EXPECT_STREQ(document->child("a").text().get(), "<&>\"");
}

TEST(XmlWriter, WritesCharactersXmlCannotHoldAsExcelEscapes) {
    EXPECT_EQ(TextOf(std::string("a\x01" "b\x1F" "c\rd", 7)), "<t>a_x0001_b_x001F_c_x000D_d</t>");
    EXPECT_EQ(TextOf(std::string("\0", 1)), "<t>_x0000_</t>");
    EXPECT_EQ(TextOf("\xEF\xBF\xBE"), "<t>_xFFFE_</t>");
}

TEST(XmlWriter, ProtectsLiteralEscapeSequences) {
    EXPECT_EQ(TextOf("_x0041_ and _xABcd_"), "<t>_x005F_x0041_ and _x005F_xABcd_</t>");
    EXPECT_EQ(TextOf("_x12_ _x004G_ a_b"), "<t>_x12_ _x004G_ a_b</t>");
}

TEST(XmlWriter, KeepsValidUtf8AndReplacesInvalidBytes) {
    EXPECT_EQ(TextOf("\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80"), "<t>\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80</t>");
    EXPECT_EQ(TextOf("a\xFF" "b"), "<t>a\xEF\xBF\xBD" "b</t>");
    EXPECT_EQ(TextOf("\xC0\x80"), "<t>\xEF\xBF\xBD\xEF\xBF\xBD</t>");           // overlong
    EXPECT_EQ(TextOf("\xED\xA0\x80"), "<t>\xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD</t>");  // surrogate
    EXPECT_EQ(TextOf("\xE2\x82"), "<t>\xEF\xBF\xBD\xEF\xBF\xBD</t>");           // truncated
}

TEST(XmlWriter, LiteralTextDropsWhatXmlCannotHoldAndKeepsUnderscores) {
    const std::string xml = WriteToString([](XmlWriter& writer) {
        writer.StartElement("p");
        writer.LiteralText(std::string("_x0041_\x01<", 9));
        writer.EndElement();
    });
    EXPECT_EQ(xml, "<p>_x0041_&lt;</p>");
}

TEST(XmlWriter, NumbersReadBackAsTheSameDouble) {
    const double values[] = {0.1, 1.0 / 3.0, -123456789.125, 1e-300, 5e-324, 1.7976931348623157e308, 45000.0,
                             -0.0, 2.5e21};
    for (double value : values) {
        const std::string xml = WriteToString([value](XmlWriter& writer) {
            writer.StartElement("v");
            writer.Number(value);
            writer.EndElement();
        });
        const std::string text = xml.substr(3, xml.size() - 7);
        EXPECT_EQ(std::strtod(text.c_str(), nullptr), value) << text;
        EXPECT_LE(text.size(), 24u) << text;
    }
    EXPECT_EQ(WriteToString([](XmlWriter& writer) { writer.Number(45000.0); }), "45000");
}

TEST(XmlWriter, WritesRoundNumbersWithoutExponent) {
    EXPECT_EQ(WriteToString([](XmlWriter& writer) { writer.Number(400000.0); }), "400000");
    EXPECT_EQ(WriteToString([](XmlWriter& writer) { writer.Number(-1e15); }), "-1000000000000000");
    EXPECT_EQ(WriteToString([](XmlWriter& writer) { writer.Number(0.00001); }), "0.00001");
    EXPECT_EQ(WriteToString([](XmlWriter& writer) { writer.Number(1e-300); }), "1E-300");
    EXPECT_EQ(WriteToString([](XmlWriter& writer) { writer.Number(2.5e21); }), "2.5E+21");  // as Excel writes exponents
}

TEST(XmlWriter, WritesNonFiniteNumbersInXmlSchemaForm) {
    const std::string xml = WriteToString([](XmlWriter& writer) {
        writer.StartElement("a");
        writer.Attribute("x", std::numeric_limits<double>::infinity());
        writer.Attribute("y", -std::numeric_limits<double>::infinity());
        writer.Attribute("z", std::numeric_limits<double>::quiet_NaN());
        writer.EndElement();
    });
    EXPECT_EQ(xml, "<a x=\"INF\" y=\"-INF\" z=\"NaN\"/>");
}

TEST(XmlWriter, StreamsTextLargerThanItsBuffer) {
    std::string text;
    for (int i = 0; i < 100000; ++i) {
        text += "row & column ";
    }
    const std::string xml = TextOf(text);
    auto document = ParseXml(xml);
    EXPECT_EQ(document->child("t").text().get(), text);
}

}  // namespace
