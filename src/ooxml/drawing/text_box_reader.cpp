#include "ooxml/drawing/text_box_reader.hpp"

#include "ooxml/drawingml/drawing_color_reader.hpp"
#include "ooxml/drawingml/pitch_family.hpp"
#include "ooxml/xml/xml_node_access.hpp"

#include <algorithm>
#include <array>
#include <charconv>

namespace ooxml {

namespace {

// The faces of the theme the package writer stores, which a theme font reference (+mn-lt) names.
constexpr std::string_view MinorFontName = "Calibri";
constexpr std::string_view MajorFontName = "Calibri Light";
constexpr double Hundredths = 100.0;
constexpr std::array<std::string_view, 5> VerticalAnchors{"t", "ctr", "b", "just", "dist"};

int64_t AttributeCoordinate(pugi::xml_node node, std::string_view name, int64_t fallback) {
    return ParseCoordinate(AttributeText(node, name)).value_or(fallback);
}

// What a fill element among children says: a colour, no fill, or nothing said (fallback).
std::optional<Color> ReadFill(pugi::xml_node properties, std::optional<Color> fallback) {
    for (pugi::xml_node child = properties.first_child(); child; child = child.next_sibling()) {
        const std::string_view name = LocalName(child);
        if (name == "noFill") {
            return std::nullopt;
        }
        if (name == "solidFill" || name == "gradFill") {
            return ReadDrawingFillColor(child);
        }
    }
    return fallback;
}

Font ReadRunFont(pugi::xml_node properties) {
    Font font;
    font.size = AttributeDouble(properties, "sz").value_or(font.size * Hundredths) / Hundredths;
    font.bold = AttributeBool(properties, "b", false);
    font.italic = AttributeBool(properties, "i", false);
    const std::string_view underline = AttributeText(properties, "u");
    if (underline == "dbl") {
        font.underline = "double";
    } else if (!underline.empty() && underline != "none") {
        font.underline = "single";
    }
    const std::string_view strike = AttributeText(properties, "strike");
    font.strike = !strike.empty() && strike != "noStrike";
    const double baseline = AttributeDouble(properties, "baseline").value_or(0.0);
    font.vertAlign = baseline > 0.0 ? "superscript" : baseline < 0.0 ? "subscript" : "";
    if (std::optional<Color> color = ReadFill(properties, font.color)) {
        font.color = *color;
    }
    const pugi::xml_node latin = FirstChild(properties, "latin");
    const std::string_view typeface = AttributeText(latin, "typeface");
    if (typeface.starts_with("+mj")) {
        font.name = MajorFontName;
        font.scheme = "major";
    } else if (typeface.starts_with("+mn")) {
        font.name = MinorFontName;
    } else if (!typeface.empty()) {
        font.name = typeface;
        font.scheme.clear();
        font.family = FamilyOfPitchFamily(AttributeUnsigned(latin, "pitchFamily").value_or(0));
    }
    return font;
}

// Paragraphs become text separated by line feeds; runs in the default font carry none, and text
// whose runs all do is plain. The line feed between two paragraphs joins the run before it, or
// in an empty paragraph a run of the paragraph's end font.
class TextReader {
public:
    void Read(pugi::xml_node body) {
        bool first = true;
        ForEachChild(body, "p", [&](pugi::xml_node paragraph) {
            if (!first) {
                AppendLineFeed();
            }
            first = false;
            ReadParagraph(paragraph);
        });
    }

    SharedString Text() {
        SharedString text;
        for (const TextRun& run : runs_) {
            text.text += run.text;
        }
        if (std::any_of(runs_.begin(), runs_.end(), [](const TextRun& run) { return run.font.has_value(); })) {
            text.runs = std::move(runs_);
        }
        return text;
    }

private:
    void ReadParagraph(pugi::xml_node paragraph) {
        endFont_ = FontOrDefault(FirstChild(paragraph, "endParaRPr"));
        for (pugi::xml_node child = paragraph.first_child(); child; child = child.next_sibling()) {
            const std::string_view name = LocalName(child);
            if (name == "r" || name == "fld") {
                Append(FirstChild(child, "t").child_value(), FontOrDefault(FirstChild(child, "rPr")));
            } else if (name == "br") {
                Append("\n", FontOrDefault(FirstChild(child, "rPr")));
            }
        }
        paragraphEmpty_ = std::none_of(paragraph.children().begin(), paragraph.children().end(), [](pugi::xml_node child) {
            const std::string_view name = LocalName(child);
            return name == "r" || name == "fld" || name == "br";
        });
    }

    static std::optional<Font> FontOrDefault(pugi::xml_node properties) {
        Font font = ReadRunFont(properties);
        return font == Font{} ? std::nullopt : std::optional<Font>(std::move(font));
    }

    void Append(std::string_view text, const std::optional<Font>& font) {
        if (text.empty()) {
            return;
        }
        if (!runs_.empty() && runs_.back().font == font) {
            runs_.back().text += text;
        } else {
            runs_.push_back(TextRun{std::string(text), font});
        }
    }

    void AppendLineFeed() {
        if (runs_.empty() || paragraphEmpty_) {
            Append("\n", endFont_);
        } else {
            runs_.back().text += '\n';
        }
    }

    std::vector<TextRun> runs_;
    std::optional<Font> endFont_;
    bool paragraphEmpty_ = false;
};

}  // namespace

DrawingShape ReadTextBoxShape(pugi::xml_node shape) {
    DrawingShape box;
    box.macro = AttributeText(shape, "macro");
    const pugi::xml_node nonVisual = FirstChild(FirstChild(shape, "nvSpPr"), "cNvPr");
    box.id = AttributeUnsigned(nonVisual, "id").value_or(box.id);
    box.name = AttributeText(nonVisual, "name");
    box.hidden = AttributeBool(nonVisual, "hidden", false);

    const pugi::xml_node properties = FirstChild(shape, "spPr");
    const pugi::xml_node transform = FirstChild(properties, "xfrm");
    box.x = AttributeCoordinate(FirstChild(transform, "off"), "x", 0);
    box.y = AttributeCoordinate(FirstChild(transform, "off"), "y", 0);
    box.width = AttributeCoordinate(FirstChild(transform, "ext"), "cx", 0);
    box.height = AttributeCoordinate(FirstChild(transform, "ext"), "cy", 0);
    box.fill = ReadFill(properties, std::nullopt);
    if (box.fill) {
        box.fillTransparency = ReadDrawingFillTransparency(FirstChild(properties, "solidFill"));
    }
    const pugi::xml_node line = FirstChild(properties, "ln");
    box.line = ReadFill(line, std::nullopt);
    box.lineWidth = AttributeCoordinate(line, "w", box.lineWidth);

    const pugi::xml_node body = FirstChild(shape, "txBody");
    const pugi::xml_node bodyProperties = FirstChild(body, "bodyPr");
    box.wrap = AttributeText(bodyProperties, "wrap") != "none";
    box.insetLeft = AttributeCoordinate(bodyProperties, "lIns", box.insetLeft);
    box.insetTop = AttributeCoordinate(bodyProperties, "tIns", box.insetTop);
    box.insetRight = AttributeCoordinate(bodyProperties, "rIns", box.insetRight);
    box.insetBottom = AttributeCoordinate(bodyProperties, "bIns", box.insetBottom);
    box.autoFit = static_cast<bool>(FirstChild(bodyProperties, "spAutoFit"));
    const std::string_view verticalAnchor = AttributeText(bodyProperties, "anchor");
    box.verticalAnchor =
        std::find(VerticalAnchors.begin(), VerticalAnchors.end(), verticalAnchor) != VerticalAnchors.end() ? verticalAnchor : "t";
    const std::string_view alignment = AttributeText(FirstChild(FirstChild(body, "p"), "pPr"), "algn");
    box.alignment = alignment.empty() ? "l" : alignment;
    TextReader text;
    text.Read(body);
    box.text = text.Text();
    return box;
}

bool IsTextBox(pugi::xml_node shape) {
    return LocalName(shape) == "sp" && AttributeBool(FirstChild(FirstChild(shape, "nvSpPr"), "cNvSpPr"), "txBox", false);
}

pugi::xml_node TextBoxOf(pugi::xml_node anchor) {
    for (pugi::xml_node child = anchor.first_child(); child; child = child.next_sibling()) {
        if (IsTextBox(child)) {
            return child;
        }
    }
    return {};
}

std::optional<int64_t> ParseCoordinate(std::string_view text) {
    while (!text.empty() && (text.front() == ' ' || text.front() == '\t' || text.front() == '\n')) {
        text.remove_prefix(1);
    }
    while (!text.empty() && (text.back() == ' ' || text.back() == '\t' || text.back() == '\n')) {
        text.remove_suffix(1);
    }
    int64_t value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (text.empty() || error != std::errc() || end != text.data() + text.size()) {
        return std::nullopt;
    }
    return value;
}

}  // namespace ooxml
