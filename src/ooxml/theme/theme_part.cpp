#include "ooxml/theme/theme_part.hpp"

#include <array>
#include <cstdint>
#include <fmt/format.h>
#include <string>

namespace ooxml {

namespace {

struct SchemeColor {
    std::string_view element;
    std::string_view systemColor;  // empty for a fixed colour
    std::size_t index;             // in the order cells index theme colours
};

// In the order the colour scheme's schema requires. The dark and light text colours are the
// system's window colours, as Excel writes them, with the last colour they had.
constexpr std::array<SchemeColor, 12> kSchemeColors{{
    {"a:dk1", "windowText", 1},
    {"a:lt1", "window", 0},
    {"a:dk2", "", 3},
    {"a:lt2", "", 2},
    {"a:accent1", "", 4},
    {"a:accent2", "", 5},
    {"a:accent3", "", 6},
    {"a:accent4", "", 7},
    {"a:accent5", "", 8},
    {"a:accent6", "", 9},
    {"a:hlink", "", 10},
    {"a:folHlink", "", 11},
}};

// A colour transform of the placeholder colour, in thousandths of a percent.
struct Transform {
    std::string_view element;
    int32_t value;
};

// A stop of a gradient: position in thousandths of a percent, and how it alters the colour.
struct GradientStop {
    int32_t position;
    std::array<Transform, 3> transforms;
};

void ValueElement(XmlWriter& xml, std::string_view element, int32_t value) {
    xml.StartElement(element);
    xml.Attribute("val", value);
    xml.EndElement();
}

// The colour a theme style is applied with (phClr), optionally transformed.
template <typename Transforms>
void PlaceholderColor(XmlWriter& xml, const Transforms& transforms) {
    xml.StartElement("a:schemeClr");
    xml.Attribute("val", "phClr");
    for (const Transform& transform : transforms) {
        if (!transform.element.empty()) {
            ValueElement(xml, transform.element, transform.value);
        }
    }
    xml.EndElement();
}

void SolidFill(XmlWriter& xml, std::array<Transform, 2> transforms = {}) {
    xml.StartElement("a:solidFill");
    PlaceholderColor(xml, transforms);
    xml.EndElement();
}

void GradientFill(XmlWriter& xml, const std::array<GradientStop, 3>& stops) {
    xml.StartElement("a:gradFill");
    xml.Attribute("rotWithShape", "1");
    xml.StartElement("a:gsLst");
    for (const GradientStop& stop : stops) {
        xml.StartElement("a:gs");
        xml.Attribute("pos", stop.position);
        PlaceholderColor(xml, stop.transforms);
        xml.EndElement();
    }
    xml.EndElement();
    xml.StartElement("a:lin");
    xml.Attribute("ang", 5400000);
    xml.Attribute("scaled", "0");
    xml.EndElement();
    xml.EndElement();
}

void WriteColorScheme(XmlWriter& xml, const std::array<uint32_t, 12>& colors) {
    xml.StartElement("a:clrScheme");
    xml.Attribute("name", "Office");
    for (const SchemeColor& color : kSchemeColors) {
        const std::string rgb = fmt::format("{:06X}", colors[color.index] & 0xFFFFFFu);
        xml.StartElement(color.element);
        if (color.systemColor.empty()) {
            xml.StartElement("a:srgbClr");
            xml.Attribute("val", rgb);
        } else {
            xml.StartElement("a:sysClr");
            xml.Attribute("val", color.systemColor);
            xml.Attribute("lastClr", rgb);
        }
        xml.EndElement();
        xml.EndElement();
    }
    xml.EndElement();
}

void WriteFontCollection(XmlWriter& xml, std::string_view element, std::string_view typeface, std::string_view panose) {
    xml.StartElement(element);
    xml.StartElement("a:latin");
    xml.Attribute("typeface", typeface);
    xml.Attribute("panose", panose);
    xml.EndElement();
    for (std::string_view script : {"a:ea", "a:cs"}) {
        xml.StartElement(script);
        xml.Attribute("typeface", "");
        xml.EndElement();
    }
    xml.EndElement();
}

void WriteFontScheme(XmlWriter& xml) {
    xml.StartElement("a:fontScheme");
    xml.Attribute("name", "Office");
    WriteFontCollection(xml, "a:majorFont", "Calibri Light", "020F0302020204030204");
    WriteFontCollection(xml, "a:minorFont", "Calibri", "020F0502020204030204");
    xml.EndElement();
}

// Three fills, lines and effects from subtle to intense, and three backgrounds, as shapes and
// charts that use theme styles expect.
void WriteFormatScheme(XmlWriter& xml) {
    xml.StartElement("a:fmtScheme");
    xml.Attribute("name", "Office");

    xml.StartElement("a:fillStyleLst");
    SolidFill(xml);
    GradientFill(xml, {{{0, {{{"a:lumMod", 110000}, {"a:satMod", 105000}, {"a:tint", 67000}}}},
                        {50000, {{{"a:lumMod", 105000}, {"a:satMod", 103000}, {"a:tint", 73000}}}},
                        {100000, {{{"a:lumMod", 105000}, {"a:satMod", 109000}, {"a:tint", 81000}}}}}});
    GradientFill(xml, {{{0, {{{"a:satMod", 103000}, {"a:lumMod", 102000}, {"a:tint", 94000}}}},
                        {50000, {{{"a:satMod", 110000}, {"a:lumMod", 100000}, {"a:shade", 100000}}}},
                        {100000, {{{"a:lumMod", 99000}, {"a:satMod", 120000}, {"a:shade", 78000}}}}}});
    xml.EndElement();

    xml.StartElement("a:lnStyleLst");
    for (int32_t width : {6350, 12700, 19050}) {
        xml.StartElement("a:ln");
        xml.Attribute("w", width);
        xml.Attribute("cap", "flat");
        xml.Attribute("cmpd", "sng");
        xml.Attribute("algn", "ctr");
        SolidFill(xml);
        xml.StartElement("a:prstDash");
        xml.Attribute("val", "solid");
        xml.EndElement();
        xml.StartElement("a:miter");
        xml.Attribute("lim", 800000);
        xml.EndElement();
        xml.EndElement();
    }
    xml.EndElement();

    xml.StartElement("a:effectStyleLst");
    for (int style = 0; style < 3; ++style) {
        xml.StartElement("a:effectStyle");
        xml.StartElement("a:effectLst");
        if (style == 2) {
            xml.StartElement("a:outerShdw");
            xml.Attribute("blurRad", 57150);
            xml.Attribute("dist", 19050);
            xml.Attribute("dir", 5400000);
            xml.Attribute("algn", "ctr");
            xml.Attribute("rotWithShape", "0");
            xml.StartElement("a:srgbClr");
            xml.Attribute("val", "000000");
            ValueElement(xml, "a:alpha", 63000);
            xml.EndElement();
            xml.EndElement();
        }
        xml.EndElement();
        xml.EndElement();
    }
    xml.EndElement();

    xml.StartElement("a:bgFillStyleLst");
    SolidFill(xml);
    SolidFill(xml, {{{"a:tint", 95000}, {"a:satMod", 170000}}});
    GradientFill(xml, {{{0, {{{"a:tint", 93000}, {"a:satMod", 150000}, {"a:shade", 98000}}}},
                        {50000, {{{"a:tint", 98000}, {"a:satMod", 130000}, {"a:shade", 90000}}}},
                        {100000, {{{"a:shade", 63000}, {"a:satMod", 120000}, {}}}}}});
    xml.EndElement();

    xml.EndElement();
}

}  // namespace

void WriteThemePart(XmlWriter& xml, const std::array<uint32_t, 12>& colors) {
    xml.Declaration();
    xml.StartElement("a:theme");
    xml.Attribute("xmlns:a", "http://schemas.openxmlformats.org/drawingml/2006/main");
    xml.Attribute("name", "Office Theme");
    xml.StartElement("a:themeElements");
    WriteColorScheme(xml, colors);
    WriteFontScheme(xml);
    WriteFormatScheme(xml);
    xml.EndElement();
    xml.StartElement("a:objectDefaults");
    xml.EndElement();
    xml.StartElement("a:extraClrSchemeLst");
    xml.EndElement();
    xml.EndElement();
}

}  // namespace ooxml
