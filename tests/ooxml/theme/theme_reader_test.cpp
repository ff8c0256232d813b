#include "ooxml/theme/theme_reader.hpp"

#include <gtest/gtest.h>

#include <string>
#include <utility>

namespace {

using ooxml::ReadThemeColors;

constexpr const char* Namespace = R"(xmlns:a="http://schemas.openxmlformats.org/drawingml/2006/main")";

// A theme whose colour scheme holds the given entries (<a:dk1>...</a:dk1> and so on).
std::string Theme(const std::string& entries) {
    return std::string(R"(<?xml version="1.0" encoding="UTF-8" standalone="yes"?>)") + "<a:theme " + Namespace +
           R"( name="Own"><a:themeElements><a:clrScheme name="Own">)" + entries +
           R"(</a:clrScheme><a:fontScheme name="Own"/></a:themeElements></a:theme>)";
}

std::string Entry(const std::string& name, const std::string& color) {
    return "<a:" + name + ">" + color + "</a:" + name + ">";
}

std::string Rgb(const std::string& value) {
    return R"(<a:srgbClr val=")" + value + R"("/>)";
}

// The twelve entries in the order the scheme lists them, dark before light.
std::string Entries(const std::string& dk1 = R"(<a:sysClr val="windowText" lastClr="101010"/>)",
                    const std::string& lt1 = R"(<a:sysClr val="window" lastClr="FEFEFE"/>)") {
    return Entry("dk1", dk1) + Entry("lt1", lt1) + Entry("dk2", Rgb("222222")) + Entry("lt2", Rgb("EEEEEE")) +
           Entry("accent1", Rgb("CEB966")) + Entry("accent2", Rgb("9CB084")) + Entry("accent3", Rgb("6BB1C9")) +
           Entry("accent4", Rgb("6585CF")) + Entry("accent5", Rgb("7E6BC9")) + Entry("accent6", Rgb("A379BB")) +
           Entry("hlink", Rgb("B333FF")) + Entry("folHlink", Rgb("5300A6"));
}

TEST(ThemeReaderTest, SchemeColoursInTheOrderCellsIndexThem) {
    const auto colors = ReadThemeColors(Theme(Entries()));
    ASSERT_TRUE(colors.has_value());
    const std::array<uint32_t, 12> expected{0xFEFEFE, 0x101010, 0xEEEEEE, 0x222222, 0xCEB966, 0x9CB084,
                                            0x6BB1C9, 0x6585CF, 0x7E6BC9, 0xA379BB, 0xB333FF, 0x5300A6};
    EXPECT_EQ(*colors, expected);
}

TEST(ThemeReaderTest, SystemColoursWithoutTheirLastColourAreWhiteWindowAndBlackText) {
    const auto colors =
        ReadThemeColors(Theme(Entries(R"(<a:sysClr val="windowText"/>)", R"(<a:sysClr val="window"/>)")));
    ASSERT_TRUE(colors.has_value());
    EXPECT_EQ((*colors)[0], 0xFFFFFFu);
    EXPECT_EQ((*colors)[1], 0x000000u);
}

TEST(ThemeReaderTest, LowerCaseHexEntriesInAnyOrderAndAnyPrefix) {
    const std::string entries = Entries(Rgb("0a0b0c"));
    std::string xml = Theme(Entry("folHlink", Rgb("123456")) + entries.substr(0, entries.find("<a:hlink>")) +
                            Entry("hlink", Rgb("B333FF")));
    for (const auto& [from, to] :
         {std::pair{"<a:", "<d:"}, std::pair{"</a:", "</d:"}, std::pair{"xmlns:a=", "xmlns:d="}}) {
        for (std::size_t at = 0; (at = xml.find(from, at)) != std::string::npos; at += std::string(to).size()) {
            xml.replace(at, std::string(from).size(), to);
        }
    }
    ASSERT_EQ(xml.find("a:"), std::string::npos);
    const auto colors = ReadThemeColors(xml);
    ASSERT_TRUE(colors.has_value());
    EXPECT_EQ((*colors)[1], 0x0A0B0Cu);
    EXPECT_EQ((*colors)[10], 0xB333FFu);
    EXPECT_EQ((*colors)[11], 0x123456u);
}

TEST(ThemeReaderTest, NothingWhenAColourIsMissingOrUnreadable) {
    const std::string entries = Entries();
    const std::string withoutAccent6 =
        entries.substr(0, entries.find("<a:accent6>")) + entries.substr(entries.find("<a:hlink>"));
    EXPECT_FALSE(ReadThemeColors(Theme(withoutAccent6)).has_value());
    EXPECT_FALSE(ReadThemeColors(Theme(Entries(Rgb("12345")))).has_value());
    EXPECT_FALSE(ReadThemeColors(Theme(Entries(Rgb("GG0000")))).has_value());
    EXPECT_FALSE(ReadThemeColors(Theme(Entries(R"(<a:sysClr val="highlight"/>)"))).has_value());
    EXPECT_FALSE(ReadThemeColors(Theme(Entries(R"(<a:schemeClr val="accent1"/>)"))).has_value());
}

TEST(ThemeReaderTest, NothingForAThemeWithoutColourSchemeOrNoThemeAtAll) {
    EXPECT_FALSE(ReadThemeColors(std::string("<a:theme ") + Namespace + "><a:themeElements/></a:theme>").has_value());
    EXPECT_FALSE(ReadThemeColors("").has_value());
    EXPECT_FALSE(ReadThemeColors("<a:theme").has_value());
    EXPECT_FALSE(ReadThemeColors(R"(<worksheet xmlns="http://schemas.openxmlformats.org/spreadsheetml/2006/main"/>)")
                     .has_value());
}

}  // namespace
