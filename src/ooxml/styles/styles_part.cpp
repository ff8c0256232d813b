#include "ooxml/styles/styles_part.hpp"

#include "ooxml/carried/carried_attributes.hpp"
#include "ooxml/carried/carried_element_writer.hpp"
#include "ooxml/styles/styles_element_order.hpp"

#include "ooxml/styles/builtin_number_formats.hpp"
#include "ooxml/styles/color_element.hpp"
#include "ooxml/styles/font_element.hpp"

#include <array>
#include <cstdint>
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

class NumberFormatTable {
public:
    uint32_t Intern(const std::string& code) {
        if (const auto builtin = BuiltinNumberFormatId(code)) {
            return *builtin;
        }
        auto [position, added] = ids_.try_emplace(code, kFirstCustomNumberFormatId + static_cast<uint32_t>(custom_.size()));
        if (added) {
            custom_.push_back(code);
        }
        return position->second;
    }

    void Write(XmlWriter& xml) const {
        if (custom_.empty()) {
            return;
        }
        xml.StartElement("numFmts");
        xml.Attribute("count", custom_.size());
        for (std::size_t i = 0; i < custom_.size(); ++i) {
            xml.StartElement("numFmt");
            xml.Attribute("numFmtId", kFirstCustomNumberFormatId + i);
            xml.Attribute("formatCode", custom_[i]);
            xml.EndElement();
        }
        xml.EndElement();
    }

private:
    std::unordered_map<std::string, uint32_t> ids_;
    std::vector<std::string> custom_;
};

struct CellXf {
    uint32_t numberFormatId = 0;
    uint32_t fontId = 0;
    uint32_t fillId = 0;
    uint32_t borderId = 0;
};

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

void WriteCellXf(XmlWriter& xml, const CellXf& xf, const CellFormat& format) {
    const bool hasAlignment = format.alignment != Alignment{};
    const bool hasProtection = !format.locked || format.hidden;
    xml.StartElement("xf");
    xml.Attribute("numFmtId", xf.numberFormatId);
    xml.Attribute("fontId", xf.fontId);
    xml.Attribute("fillId", xf.fillId);
    xml.Attribute("borderId", xf.borderId);
    xml.Attribute("xfId", 0);
    if (format.quotePrefix) {
        xml.Attribute("quotePrefix", "1");
    }
    // Each apply flag says the cell overrides that part of the Normal style.
    const std::pair<std::string_view, bool> applies[] = {
        {"applyNumberFormat", xf.numberFormatId != 0}, {"applyFont", xf.fontId != 0},
        {"applyFill", xf.fillId != 0},                 {"applyBorder", xf.borderId != 0},
        {"applyAlignment", hasAlignment},              {"applyProtection", hasProtection},
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

// An entry without a colour keeps its place, as black: the table is indexed by position.
void WritePalette(XmlWriter& xml, const std::vector<std::optional<uint32_t>>& palette) {
    if (palette.empty()) {
        return;
    }
    xml.StartElement("colors");
    xml.StartElement("indexedColors");
    for (const std::optional<uint32_t>& rgb : palette) {
        WriteColor(xml, "rgbColor", Color{Color::Kind::Rgb, 0xFF000000u | rgb.value_or(0), 0, 0.0});
    }
    xml.EndElement();
    xml.EndElement();
}

void WriteEmptyList(XmlWriter& xml, std::string_view element) {
    xml.StartElement(element);
    xml.Attribute("count", 0);
    xml.EndElement();
}

// The Normal style (the default format's font with no fill, border or number format), and the
// cell formats, all based on it.
void WriteNormalStyle(XmlWriter& xml, const std::vector<CellXf>& cellXfs, const std::vector<CellFormat>& formats) {
    xml.StartElement("cellStyleXfs");
    xml.Attribute("count", 1);
    xml.StartElement("xf");
    xml.Attribute("numFmtId", 0);
    xml.Attribute("fontId", 0);
    xml.Attribute("fillId", 0);
    xml.Attribute("borderId", 0);
    xml.EndElement();
    xml.EndElement();

    xml.StartElement("cellXfs");
    xml.Attribute("count", cellXfs.size());
    for (std::size_t i = 0; i < cellXfs.size(); ++i) {
        WriteCellXf(xml, cellXfs[i], formats[i]);
    }
    xml.EndElement();

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
    NumberFormatTable numberFormats;
    PieceTable fonts;
    PieceTable fills;
    PieceTable borders;
    // Excel reserves the first two fills, whatever the formats use.
    fills.Intern([](XmlWriter& piece) { WriteFill(piece, Fill{"none", {}, {}}); });
    fills.Intern([](XmlWriter& piece) { WriteFill(piece, Fill{"gray125", {}, {}}); });
    borders.Intern([](XmlWriter& piece) { WriteBorder(piece, Border{}); });

    std::vector<CellXf> cellXfs;
    cellXfs.reserve(document.formats.size());
    for (const CellFormat& format : document.formats) {
        CellXf xf;
        xf.numberFormatId = numberFormats.Intern(format.numberFormat);
        xf.fontId = fonts.Intern([&format](XmlWriter& piece) { WriteFont(piece, "font", "name", format.font); });
        xf.fillId = fills.Intern([&format](XmlWriter& piece) { WriteFill(piece, format.fill); });
        xf.borderId = borders.Intern([&format](XmlWriter& piece) { WriteBorder(piece, format.border); });
        cellXfs.push_back(xf);
    }

    xml.Declaration();
    xml.StartElement("styleSheet");
    xml.Attribute("xmlns", kMainNamespace);
    const CarriedMarkup* carried = document.carried ? &document.carried->styles : nullptr;
    if (carried != nullptr) {
        WriteCarriedAttributes(xml, carried->rootAttributes);
    }
    CarriedElementWriter carriedElements(xml, carried != nullptr ? &carried->elements : nullptr);
    if (!document.palette.empty()) {
        carriedElements.Drop("colors");
    }
    numberFormats.Write(xml);
    fonts.Write(xml, "fonts");
    fills.Write(xml, "fills");
    borders.Write(xml, "borders");
    WriteNormalStyle(xml, cellXfs, document.formats);
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
    WritePalette(xml, document.palette);
    carriedElements.Rest();
    xml.EndElement();
}

}  // namespace ooxml
