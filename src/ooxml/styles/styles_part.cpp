#include "ooxml/styles/styles_part.hpp"

#include "ooxml/carried/carried_attributes.hpp"
#include "ooxml/carried/carried_element_writer.hpp"
#include "ooxml/styles/styles_element_order.hpp"
#include "ooxml/xml/xml_node_access.hpp"
#include "ooxml/xml/xml_part_parser.hpp"

#include "ooxml/styles/color_element.hpp"
#include "ooxml/styles/color_reader.hpp"
#include "ooxml/styles/font_element.hpp"
#include "ooxml/styles/number_format_table.hpp"

#include <array>
#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

namespace ooxml {

namespace {

constexpr std::string_view kMainNamespace = "http://schemas.openxmlformats.org/spreadsheetml/2006/main";

// Serialised pieces of a kind (fonts, fills, borders), each kept once; a piece's XML is its
// identity, so two formats share a piece exactly when the file would say the same for both.
class PieceTable {
public:
    template <typename WritePiece>
    uint32_t Intern(WritePiece writePiece) {
        StringSink sink;
        XmlWriter xml(sink);
        writePiece(xml);
        xml.Flush();
        auto [position, added] = indices_.try_emplace(sink.Text(), static_cast<uint32_t>(pieces_.size()));
        if (added) {
            pieces_.push_back(sink.Text());
        }
        return position->second;
    }

    void Write(XmlWriter& xml, std::string_view listElement) const {
        xml.StartElement(listElement);
        xml.Attribute("count", pieces_.size());
        for (const std::string& piece : pieces_) {
            xml.Raw(piece);
        }
        xml.EndElement();
    }

private:
    std::unordered_map<std::string, uint32_t> indices_;
    std::vector<std::string> pieces_;
};

void WriteFill(XmlWriter& xml, const Fill& fill) {
    xml.StartElement("fill");
    if (!fill.gradient.empty()) {
        xml.Raw(fill.gradient);
        xml.EndElement();
        return;
    }
    xml.StartElement("patternFill");
    xml.Attribute("patternType", fill.patternType.empty() ? std::string_view("none") : fill.patternType);
    WriteColor(xml, "fgColor", fill.foreground);
    WriteColor(xml, "bgColor", fill.background);
    xml.EndElement();
    xml.EndElement();
}

void WriteBorderLine(XmlWriter& xml, std::string_view element, const BorderLine& line) {
    xml.StartElement(element);
    if (!line.style.empty() && line.style != "none") {
        xml.Attribute("style", line.style);
        WriteColor(xml, "color", line.color);
    }
    xml.EndElement();
}

void WriteBorder(XmlWriter& xml, const Border& border) {
    xml.StartElement("border");
    if (border.diagonalUp) {
        xml.Attribute("diagonalUp", "1");
    }
    if (border.diagonalDown) {
        xml.Attribute("diagonalDown", "1");
    }
    WriteBorderLine(xml, "left", border.left);
    WriteBorderLine(xml, "right", border.right);
    WriteBorderLine(xml, "top", border.top);
    WriteBorderLine(xml, "bottom", border.bottom);
    WriteBorderLine(xml, "diagonal", border.diagonal);
    xml.EndElement();
}

struct CellXf {
    uint32_t numberFormatId = 0;
    uint32_t fontId = 0;
    uint32_t fillId = 0;
    uint32_t borderId = 0;
};

// The number formats, fonts, fills and borders the formats of a styles part use, each kept once.
class StylePieces {
public:
    explicit StylePieces(const std::map<uint32_t, std::string>& declaredNumberFormats)
        : numberFormats_(declaredNumberFormats) {
        // Excel reserves the first two fills, whatever the formats use.
        for (const std::string_view reserved : {"none", "gray125"}) {
            Fill fill;
            fill.patternType = reserved;
            fills_.Intern([&fill](XmlWriter& piece) { WriteFill(piece, fill); });
        }
        borders_.Intern([](XmlWriter& piece) { WriteBorder(piece, Border{}); });
    }

    CellXf Intern(const CellFormat& format) {
        CellXf xf;
        xf.numberFormatId = numberFormats_.Intern(format.numberFormat);
        xf.fontId = fonts_.Intern([&format](XmlWriter& piece) { WriteFont(piece, "font", "name", format.font); });
        xf.fillId = fills_.Intern([&format](XmlWriter& piece) { WriteFill(piece, format.fill); });
        xf.borderId = borders_.Intern([&format](XmlWriter& piece) { WriteBorder(piece, format.border); });
        return xf;
    }

    void Write(XmlWriter& xml) const {
        numberFormats_.Write(xml);
        fonts_.Write(xml, "fonts");
        fills_.Write(xml, "fills");
        borders_.Write(xml, "borders");
    }

private:
    NumberFormatTable numberFormats_;
    PieceTable fonts_;
    PieceTable fills_;
    PieceTable borders_;
};

void WriteXfIds(XmlWriter& xml, const CellXf& xf) {
    xml.Attribute("numFmtId", xf.numberFormatId);
    xml.Attribute("fontId", xf.fontId);
    xml.Attribute("fillId", xf.fillId);
    xml.Attribute("borderId", xf.borderId);
}

void WriteAlignment(XmlWriter& xml, const Alignment& alignment) {
    xml.StartElement("alignment");
    if (!alignment.horizontal.empty() && alignment.horizontal != "general") {
        xml.Attribute("horizontal", alignment.horizontal);
    }
    if (!alignment.vertical.empty() && alignment.vertical != "bottom") {
        xml.Attribute("vertical", alignment.vertical);
    }
    if (alignment.textRotation != 0) {
        xml.Attribute("textRotation", alignment.textRotation);
    }
    if (alignment.wrapText) {
        xml.Attribute("wrapText", "1");
    }
    if (alignment.indent != 0) {
        xml.Attribute("indent", alignment.indent);
    }
    if (alignment.shrinkToFit) {
        xml.Attribute("shrinkToFit", "1");
    }
    xml.EndElement();
}

bool HasProtection(const CellFormat& format) {
    return !format.locked || format.hidden;
}

// A named style's format, with its ids, under which a cell format is written.
struct StyleXf {
    CellXf xf;
    const CellFormat* format = nullptr;
};

void WriteCellXf(XmlWriter& xml, const CellXf& xf, const CellFormat& format, uint32_t styleIndex,
                 const StyleXf& style) {
    const bool hasAlignment = format.alignment != Alignment{};
    const bool hasProtection = HasProtection(format);
    xml.StartElement("xf");
    WriteXfIds(xml, xf);
    xml.Attribute("xfId", styleIndex);
    if (format.quotePrefix) {
        xml.Attribute("quotePrefix", "1");
    }
    if (format.pivotButton) {
        xml.Attribute("pivotButton", "1");
    }
    // Each apply flag says the cell overrides that part of its named style.
    const CellFormat& base = *style.format;
    const std::pair<std::string_view, bool> applies[] = {
        {"applyNumberFormat", xf.numberFormatId != style.xf.numberFormatId},
        {"applyFont", xf.fontId != style.xf.fontId},
        {"applyFill", xf.fillId != style.xf.fillId},
        {"applyBorder", xf.borderId != style.xf.borderId},
        {"applyAlignment", format.alignment != base.alignment},
        {"applyProtection", format.locked != base.locked || format.hidden != base.hidden},
    };
    for (const auto& [attribute, set] : applies) {
        if (set) {
            xml.Attribute(attribute, "1");
        }
    }
    if (hasAlignment) {
        WriteAlignment(xml, format.alignment);
    }
    if (hasProtection) {
        xml.StartElement("protection");
        if (!format.locked) {
            xml.Attribute("locked", "0");
        }
        if (format.hidden) {
            xml.Attribute("hidden", "1");
        }
        xml.EndElement();
    }
    xml.EndElement();
}

void WriteStyleXf(XmlWriter& xml, const CellXf& xf, const CarriedStyleFormat& style) {
    xml.StartElement("xf");
    WriteXfIds(xml, xf);
    WriteCarriedAttributes(xml, style.attributes);
    if (!style.children.empty()) {
        xml.Raw(style.children);
    }
    xml.EndElement();
}

// The file's <colors>, parsed; an empty document when it had none.
std::unique_ptr<pugi::xml_document> FileColors(const CarriedStyles* carried) {
    auto colors = std::make_unique<pugi::xml_document>();
    if (carried != nullptr) {
        for (const CarriedElement& element : carried->markup.elements) {
            if (element.name == "colors") {
                colors->load_string(element.xml.c_str(), XmlPartParseOptions);
            }
        }
    }
    return colors;
}

// The palette, with the file's most recently used colours after it. An entry without a colour
// keeps its place, as black: the table is indexed by position.
void WritePalette(XmlWriter& xml, const std::vector<std::optional<uint32_t>>& palette, pugi::xml_node fileColors) {
    const pugi::xml_node recent = FirstChild(fileColors, "mruColors");
    if (palette.empty() && !recent) {
        return;
    }
    xml.StartElement("colors");
    if (!palette.empty()) {
        xml.StartElement("indexedColors");
        for (const std::optional<uint32_t>& rgb : palette) {
            WriteColor(xml, "rgbColor", Color{Color::Kind::Rgb, 0xFF000000u | rgb.value_or(0), 0, 0.0});
        }
        xml.EndElement();
    }
    if (recent) {
        xml.Raw(ElementMarkup(recent));
    }
    xml.EndElement();
}

void WriteEmptyList(XmlWriter& xml, std::string_view element) {
    xml.StartElement(element);
    xml.Attribute("count", 0);
    xml.EndElement();
}

// The Normal style's format of a new workbook: the default format's font, with no fill, border or
// number format.
CarriedStyleFormat NormalStyleFormat(const WorkbookDocument& document) {
    CarriedStyleFormat normal;
    normal.format.font = document.formats.front().font;
    return normal;
}

void WriteNormalStyle(XmlWriter& xml) {
    xml.StartElement("cellStyles");
    xml.Attribute("count", 1);
    xml.StartElement("cellStyle");
    xml.Attribute("name", "Normal");
    xml.Attribute("xfId", 0);
    xml.Attribute("builtinId", 0);
    xml.EndElement();
    xml.EndElement();
}

}  // namespace

void WriteStylesPart(XmlWriter& xml, const WorkbookDocument& document) {
    const CarriedStyles* carried = document.carried ? &document.carried->styles : nullptr;
    StylePieces pieces(carried != nullptr ? carried->numberFormats : std::map<uint32_t, std::string>{});
    // The named styles' pieces first, so that the Normal style's font is font 0 as Excel expects.
    // The named styles' formats of the opened file, or for a new workbook the Normal style's.
    const std::vector<CarriedStyleFormat> newWorkbookStyles{NormalStyleFormat(document)};
    const std::vector<CarriedStyleFormat>& styleFormats =
        carried != nullptr && !carried->styleFormats.empty() ? carried->styleFormats : newWorkbookStyles;
    std::vector<StyleXf> styleXfs;
    styleXfs.reserve(styleFormats.size());
    for (const CarriedStyleFormat& style : styleFormats) {
        styleXfs.push_back(StyleXf{pieces.Intern(style.format), &style.format});
    }
    std::vector<CellXf> cellXfs;
    cellXfs.reserve(document.formats.size());
    for (const CellFormat& format : document.formats) {
        cellXfs.push_back(pieces.Intern(format));
    }

    xml.Declaration();
    xml.StartElement("styleSheet");
    xml.Attribute("xmlns", kMainNamespace);
    if (carried != nullptr) {
        WriteCarriedAttributes(xml, carried->markup.rootAttributes);
    }
    CarriedElementWriter carriedElements(xml, carried != nullptr ? &carried->markup.elements : nullptr);
    // The file's colours stay as it wrote them (Excel writes the alpha of the indexed ones either
    // way) while they are the workbook's; else the palette is written anew.
    const std::unique_ptr<pugi::xml_document> fileColors = FileColors(carried);
    const bool ownColors = ReadIndexedColors(fileColors->document_element()) != document.palette;
    if (ownColors) {
        carriedElements.Drop("colors");
    }
    pieces.Write(xml);

    xml.StartElement("cellStyleXfs");
    xml.Attribute("count", styleXfs.size());
    for (std::size_t i = 0; i < styleXfs.size(); ++i) {
        WriteStyleXf(xml, styleXfs[i].xf, styleFormats[i]);
    }
    xml.EndElement();

    xml.StartElement("cellXfs");
    xml.Attribute("count", cellXfs.size());
    for (std::size_t i = 0; i < cellXfs.size(); ++i) {
        // A format based on a style this workbook lacks (one copied from another) falls back to Normal.
        const uint32_t style = document.formats[i].style < styleXfs.size() ? document.formats[i].style : 0;
        WriteCellXf(xml, cellXfs[i], document.formats[i], style, styleXfs[style]);
    }
    xml.EndElement();

    carriedElements.Before(StylesElementOrder.Slot("cellStyles"));
    if (!carriedElements.Carries("cellStyles")) {
        WriteNormalStyle(xml);
    }
    carriedElements.Through(StylesElementOrder.Slot("cellStyles"));
    if (!carriedElements.Carries("dxfs")) {
        WriteEmptyList(xml, "dxfs");
    }
    carriedElements.Through(StylesElementOrder.Slot("dxfs"));
    if (!carriedElements.Carries("tableStyles")) {
        xml.StartElement("tableStyles");
        xml.Attribute("count", 0);
        xml.Attribute("defaultTableStyle", "TableStyleMedium2");
        xml.Attribute("defaultPivotStyle", "PivotStyleLight16");
        xml.EndElement();
    }
    carriedElements.Through(StylesElementOrder.Slot("tableStyles"));
    if (ownColors) {
        WritePalette(xml, document.palette, fileColors->document_element());
    }
    carriedElements.Rest();
    xml.EndElement();
}

}  // namespace ooxml
