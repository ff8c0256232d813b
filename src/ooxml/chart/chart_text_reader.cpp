#include "ooxml/chart/chart_text_reader.hpp"

#include "ooxml/chart/chart_values.hpp"
#include "ooxml/drawingml/drawing_color_reader.hpp"
#include "ooxml/xml/xml_node_access.hpp"

namespace ooxml {

namespace {

constexpr double Hundredths = 100.0;

std::optional<bool> OptionalBool(pugi::xml_node properties, std::string_view name) {
    const pugi::xml_attribute attribute = Attribute(properties, name);
    return attribute ? ParseBoolean(attribute.value()) : std::nullopt;
}

// The body's rotation and vertical text (a:bodyPr).
void ReadBody(pugi::xml_node body, std::optional<int32_t>& rotation, std::string& vertical) {
    rotation = IntegerAttribute(body, "rot");
    vertical = AttributeText(body, "vert");
}

pugi::xml_node FirstParagraphDefaults(pugi::xml_node text) {
    return FirstChild(FirstChild(FirstChild(text, "p"), "pPr"), "defRPr");
}

// The text a paragraph's runs and fields show: a line break is a line feed.
void ReadParagraphRuns(pugi::xml_node paragraph, std::vector<ChartTextRun>& runs) {
    for (pugi::xml_node child = paragraph.first_child(); child; child = child.next_sibling()) {
        const std::string_view name = LocalName(child);
        if (name == "r" || name == "fld") {
            runs.push_back({FirstChild(child, "t").child_value(), ReadChartFont(FirstChild(child, "rPr"))});
        } else if (name == "br") {
            runs.push_back({"\n", ReadChartFont(FirstChild(child, "rPr"))});
        }
    }
}

}  // namespace

ChartFont ReadChartFont(pugi::xml_node properties) {
    ChartFont font;
    const pugi::xml_attribute typeface = Attribute(FirstChild(properties, "latin"), "typeface");
    if (typeface) {
        font.name = typeface.value();
    }
    if (const std::optional<double> size = AttributeDouble(properties, "sz")) {
        font.size = *size / Hundredths;
    }
    font.bold = OptionalBool(properties, "b");
    font.italic = OptionalBool(properties, "i");
    if (const pugi::xml_attribute strike = Attribute(properties, "strike")) {
        font.strike = std::string_view(strike.value()) != "noStrike";
    }
    if (const pugi::xml_attribute underline = Attribute(properties, "u")) {
        font.underline = underline.value();
    }
    if (const pugi::xml_node fill = FirstChild(properties, "solidFill")) {
        font.color = ReadDrawingFillColor(fill);
    }
    return font;
}

ChartTextProperties ReadChartTextProperties(pugi::xml_node properties) {
    ChartTextProperties text;
    if (!properties) {
        return text;
    }
    ReadBody(FirstChild(properties, "bodyPr"), text.rotation, text.vertical);
    text.font = ReadChartFont(FirstParagraphDefaults(properties));
    text.markup = ChildrenMarkup(properties);
    return text;
}

void ReadChartRichText(pugi::xml_node rich, ChartTitle& title) {
    ReadBody(FirstChild(rich, "bodyPr"), title.rotation, title.vertical);
    title.paragraphFont = ReadChartFont(FirstParagraphDefaults(rich));
    bool first = true;
    ForEachChild(rich, "p", [&](pugi::xml_node paragraph) {
        if (!first) {
            if (title.runs.empty()) {
                title.runs.push_back({});
            }
            title.runs.back().text += '\n';
        }
        first = false;
        ReadParagraphRuns(paragraph, title.runs);
    });
    title.richMarkup = ChildrenMarkup(rich);
}

}  // namespace ooxml
