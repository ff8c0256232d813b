#include "ooxml/drawingml/text_box_shape.hpp"

#include "ooxml/drawingml/drawing_color_element.hpp"
#include "ooxml/drawingml/pitch_family.hpp"
#include "ooxml/drawingml/text_box_paragraphs.hpp"

#include <algorithm>
#include <array>
#include <cmath>

namespace ooxml {

namespace {

constexpr std::array<std::string_view, 5> VerticalAnchors{"t", "ctr", "b", "just", "dist"};
constexpr std::array<std::string_view, 6> Alignments{"ctr", "r", "just", "justLow", "dist", "thaiDist"};
// The insets a text body has when bodyPr leaves them out (EMU).
constexpr int64_t DefaultSideInset = 91440;
constexpr int64_t DefaultEdgeInset = 45720;
const Color DefaultTextColor{Color::Kind::Theme, 0, 1, 0.0};

template <std::size_t N>
bool OneOf(const std::array<std::string_view, N>& values, std::string_view value) {
    return std::find(values.begin(), values.end(), value) != values.end();
}

class TextBoxShapeWriter {
public:
    TextBoxShapeWriter(XmlWriter& xml, const TextBoxDrawing& drawing) : xml_(xml), drawing_(drawing) {}

    void Write(const DrawingShape& box) {
        xml_.StartElement(drawing_.shape);
        xml_.Attribute("macro", box.macro);
        xml_.Attribute("textlink", "");
        WriteNonVisualProperties(box);
        WriteShapeProperties(box);
        if (drawing_.styled) {
            WriteStyle();
        }
        WriteTextBody(box);
        xml_.EndElement();
    }

private:
    void WriteNonVisualProperties(const DrawingShape& box) {
        xml_.StartElement(drawing_.nonVisual);
        xml_.StartElement(drawing_.nonVisualShape);
        xml_.Attribute("id", box.id);
        xml_.Attribute("name", box.name);
        if (box.hidden) {
            xml_.Attribute("hidden", "1");
        }
        xml_.EndElement();
        xml_.StartElement(drawing_.textBoxFlag);
        xml_.Attribute("txBox", "1");
        xml_.EndElement();
        xml_.EndElement();
    }

    void WriteShapeProperties(const DrawingShape& box) {
        xml_.StartElement(drawing_.properties);
        xml_.StartElement("a:xfrm");
        xml_.StartElement("a:off");
        xml_.Attribute("x", box.x);
        xml_.Attribute("y", box.y);
        xml_.EndElement();
        xml_.StartElement("a:ext");
        xml_.Attribute("cx", std::max<int64_t>(box.width, 0));
        xml_.Attribute("cy", std::max<int64_t>(box.height, 0));
        xml_.EndElement();
        xml_.EndElement();
        xml_.StartElement("a:prstGeom");
        xml_.Attribute("prst", "rect");
        xml_.StartElement("a:avLst");
        xml_.EndElement();
        xml_.EndElement();
        if (box.fill || drawing_.styled) {
            WriteFill(box.fill, box.fillTransparency);
        }
        if (box.line || drawing_.styled) {
            xml_.StartElement("a:ln");
            xml_.Attribute("w", std::clamp<int64_t>(box.lineWidth, 0, MaxLineWidth));
            xml_.Attribute("cmpd", "sng");
            WriteFill(box.line);
            xml_.EndElement();
        }
        xml_.EndElement();
    }

    void WriteFill(const std::optional<Color>& color, double transparency = 0.0) {
        if (color) {
            WriteSolidFill(xml_, *color, transparency);
        } else {
            xml_.StartElement("a:noFill");
            xml_.EndElement();
        }
    }

    // The style Excel gives an inserted text box: no theme line, fill or effect; the minor font in Text 1.
    void WriteStyle() {
        xml_.StartElement(drawing_.style);
        for (const std::string_view reference : {"a:lnRef", "a:fillRef", "a:effectRef"}) {
            xml_.StartElement(reference);
            xml_.Attribute("idx", 0);
            xml_.StartElement("a:scrgbClr");
            xml_.Attribute("r", 0);
            xml_.Attribute("g", 0);
            xml_.Attribute("b", 0);
            xml_.EndElement();
            xml_.EndElement();
        }
        xml_.StartElement("a:fontRef");
        xml_.Attribute("idx", "minor");
        xml_.StartElement("a:schemeClr");
        xml_.Attribute("val", "dk1");
        xml_.EndElement();
        xml_.EndElement();
        xml_.EndElement();
    }

    void WriteTextBody(const DrawingShape& box) {
        xml_.StartElement(drawing_.body);
        xml_.StartElement("a:bodyPr");
        xml_.Attribute("wrap", box.wrap ? "square" : "none");
        WriteInset("lIns", box.insetLeft, DefaultSideInset);
        WriteInset("tIns", box.insetTop, DefaultEdgeInset);
        WriteInset("rIns", box.insetRight, DefaultSideInset);
        WriteInset("bIns", box.insetBottom, DefaultEdgeInset);
        xml_.Attribute("rtlCol", "0");
        xml_.Attribute("anchor",
                       OneOf(VerticalAnchors, box.verticalAnchor) ? std::string_view(box.verticalAnchor) : "t");
        if (box.autoFit) {
            xml_.StartElement("a:spAutoFit");
            xml_.EndElement();
        }
        xml_.EndElement();
        xml_.StartElement("a:lstStyle");
        xml_.EndElement();
        const bool aligned = OneOf(Alignments, box.alignment);
        for (const TextParagraph& paragraph : SplitIntoParagraphs(box.text)) {
            xml_.StartElement("a:p");
            if (aligned) {
                xml_.StartElement("a:pPr");
                xml_.Attribute("algn", box.alignment);
                xml_.EndElement();
            }
            for (const TextParagraph::Run& run : paragraph.runs) {
                xml_.StartElement("a:r");
                WriteRunProperties("a:rPr", run.font);
                xml_.StartElement("a:t");
                xml_.LiteralText(run.text);
                xml_.EndElement();
                xml_.EndElement();
            }
            if (paragraph.runs.empty()) {
                WriteRunProperties("a:endParaRPr", paragraph.endFont);
            }
            xml_.EndElement();
        }
        xml_.EndElement();
    }

    void WriteInset(std::string_view attribute, int64_t inset, int64_t standard) {
        if (inset != standard) {
            xml_.Attribute(attribute, std::clamp<int64_t>(inset, 0, MaxCoordinate));
        }
    }

    // A run without a font gets what Excel writes for text in the default font.
    void WriteRunProperties(std::string_view element, const Font* font) {
        xml_.StartElement(element);
        xml_.Attribute("lang", "en-US");
        if (font == nullptr) {
            xml_.Attribute("sz", DefaultTextSize);
            xml_.EndElement();
            return;
        }
        xml_.Attribute("sz", std::clamp<int64_t>(std::lround(font->size * 100.0), MinTextSize, MaxTextSize));
        if (font->bold) {
            xml_.Attribute("b", "1");
        }
        if (font->italic) {
            xml_.Attribute("i", "1");
        }
        if (font->underline == "single" || font->underline == "singleAccounting") {
            xml_.Attribute("u", "sng");
        } else if (font->underline == "double" || font->underline == "doubleAccounting") {
            xml_.Attribute("u", "dbl");
        }
        if (font->strike) {
            xml_.Attribute("strike", "sngStrike");
        }
        if (font->vertAlign == "superscript") {
            xml_.Attribute("baseline", SuperscriptBaseline);
        } else if (font->vertAlign == "subscript") {
            xml_.Attribute("baseline", SubscriptBaseline);
        }
        if (font->color.kind != Color::Kind::None && font->color.kind != Color::Kind::Auto &&
            font->color != DefaultTextColor) {
            WriteSolidFill(xml_, font->color);
        }
        WriteTypeface(*font);
        xml_.EndElement();
    }

    // The theme's minor font is a sheet's text box's own (its style's font reference); a chart's text
    // box has no style, so its runs refer to the theme's minor font themselves. A major-scheme font
    // refers to the theme, any other font is named.
    void WriteTypeface(const Font& font) {
        if (font.scheme == "minor" && drawing_.styled) {
            return;
        }
        const bool major = font.scheme == "major";
        const bool minor = font.scheme == "minor";
        if (!major && !minor && font.name.empty()) {
            return;
        }
        for (const std::string_view element : {"a:latin", "a:cs"}) {
            xml_.StartElement(element);
            if (major || minor) {
                const bool latin = element == "a:latin";
                xml_.Attribute("typeface", major ? (latin ? "+mj-lt" : "+mj-cs") : (latin ? "+mn-lt" : "+mn-cs"));
            } else {
                xml_.Attribute("typeface", font.name);
                if (font.family > 0) {
                    xml_.Attribute("pitchFamily", PitchFamily(font.family));
                }
            }
            xml_.EndElement();
        }
    }

    static constexpr int64_t MaxLineWidth = 20116800;
    static constexpr int64_t MaxCoordinate = 27273042316900;
    static constexpr int64_t DefaultTextSize = 1100;
    static constexpr int64_t MinTextSize = 100;
    static constexpr int64_t MaxTextSize = 400000;
    static constexpr int32_t SuperscriptBaseline = 30000;
    static constexpr int32_t SubscriptBaseline = -25000;

    XmlWriter& xml_;
    const TextBoxDrawing& drawing_;
};

}  // namespace

void WriteTextBoxShape(XmlWriter& xml, const DrawingShape& box, const TextBoxDrawing& drawing) {
    TextBoxShapeWriter(xml, drawing).Write(box);
}

}  // namespace ooxml
