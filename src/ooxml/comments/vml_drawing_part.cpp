#include "ooxml/comments/vml_drawing_part.hpp"

#include "ooxml/carried/carried_attributes.hpp"
#include "ooxml/comments/vml_id_blocks.hpp"
#include "ooxml/package_error.hpp"

#include <fmt/format.h>

#include <set>
#include <string>

namespace ooxml {

namespace {

constexpr uint32_t DefaultStrokeRgb = 0x000000;
constexpr double DefaultStrokeWeight = 0.75;  // points

std::string VmlColor(uint32_t rgb) {
    return fmt::format("#{:06x}", rgb & 0xFFFFFFu);
}

std::string IdBlocks(const std::set<uint32_t>& blocks) {
    std::string data;
    for (const uint32_t block : blocks) {
        data += data.empty() ? "" : ",";
        data += std::to_string(block);
    }
    return data;
}

// The blocks the drawing's shapes take: the notes' and those of the shapes it carries. A drawing
// of carried shapes alone lists theirs only, unless they have none.
std::set<uint32_t> UsedIdBlocks(const SheetDocument& sheet, const std::vector<uint32_t>& noteIdBlocks) {
    std::set<uint32_t> blocks;
    if (sheet.carried && !sheet.carried->legacyDrawing.elements.empty()) {
        blocks.insert(sheet.carried->legacyDrawingIdBlocks.begin(), sheet.carried->legacyDrawingIdBlocks.end());
    }
    if (!sheet.comments.empty() || blocks.empty()) {
        blocks.insert(noteIdBlocks.begin(), noteIdBlocks.end());
    }
    return blocks;
}

class VmlDrawingWriter {
public:
    explicit VmlDrawingWriter(XmlWriter& xml) : xml_(xml) {}

    void Write(const SheetDocument& sheet, const std::vector<uint32_t>& noteIdBlocks) {
        const CarriedMarkup* carried = sheet.carried ? &sheet.carried->legacyDrawing : nullptr;
        xml_.StartElement("xml");
        xml_.Attribute("xmlns:v", "urn:schemas-microsoft-com:vml");
        xml_.Attribute("xmlns:o", "urn:schemas-microsoft-com:office:office");
        xml_.Attribute("xmlns:x", "urn:schemas-microsoft-com:office:excel");
        if (carried != nullptr) {
            WriteCarriedAttributes(xml_, carried->rootAttributes);
        }
        xml_.StartElement("o:shapelayout");
        xml_.Attribute("v:ext", "edit");
        xml_.StartElement("o:idmap");
        xml_.Attribute("v:ext", "edit");
        xml_.Attribute("data", IdBlocks(UsedIdBlocks(sheet, noteIdBlocks)));
        xml_.EndElement();
        xml_.EndElement();
        WriteNoteShapeType();
        const std::vector<uint32_t> ids = VmlShapeIds(noteIdBlocks, sheet.comments.size());
        if (ids.size() < sheet.comments.size()) {
            throw PackageError(PackageError::Reason::WriteFailed,
                               "too few VML shape ids for the notes of " + sheet.name);
        }
        for (std::size_t i = 0; i < sheet.comments.size(); ++i) {
            WriteNoteShape(sheet.comments[i], ids[i], static_cast<uint32_t>(i + 1));
        }
        if (carried != nullptr) {
            for (const CarriedElement& element : carried->elements) {
                xml_.Raw(element.xml);
            }
        }
        xml_.EndElement();
    }

private:
    // The text box shape type (202) every note refers to.
    void WriteNoteShapeType() {
        xml_.StartElement("v:shapetype");
        xml_.Attribute("id", kVmlNoteShapeTypeId);
        xml_.Attribute("coordsize", "21600,21600");
        xml_.Attribute("o:spt", "202");
        xml_.Attribute("path", "m,l,21600r21600,l21600,xe");
        xml_.StartElement("v:stroke");
        xml_.Attribute("joinstyle", "miter");
        xml_.EndElement();
        xml_.StartElement("v:path");
        xml_.Attribute("gradientshapeok", "t");
        xml_.Attribute("o:connecttype", "rect");
        xml_.EndElement();
        xml_.EndElement();
    }

    void WriteNoteShape(const CellComment& comment, uint32_t shapeId, uint32_t zIndex) {
        xml_.StartElement("v:shape");
        xml_.Attribute("id", fmt::format("_x0000_s{}", shapeId));
        xml_.Attribute("type", fmt::format("#{}", kVmlNoteShapeTypeId));
        xml_.Attribute("style", fmt::format("position:absolute;margin-left:{}pt;margin-top:{}pt;width:{}pt;height:{}pt;"
                                            "z-index:{};visibility:{}",
                                            comment.left, comment.top, comment.width, comment.height, zIndex,
                                            comment.visible ? "visible" : "hidden"));
        xml_.Attribute("fillcolor", VmlColor(comment.fillRgb));
        if ((comment.lineRgb & 0xFFFFFFu) != DefaultStrokeRgb) {
            xml_.Attribute("strokecolor", VmlColor(comment.lineRgb));
        }
        if (comment.lineWeight != DefaultStrokeWeight) {
            xml_.Attribute("strokeweight", fmt::format("{}pt", comment.lineWeight));
        }
        xml_.Attribute("o:insetmode", comment.insets ? "custom" : "auto");
        xml_.StartElement("v:fill");
        xml_.Attribute("color2", VmlColor(comment.fillRgb));
        xml_.EndElement();
        xml_.StartElement("v:shadow");
        xml_.Attribute("on", "t");
        xml_.Attribute("color", "black");
        xml_.Attribute("obscured", "t");
        xml_.EndElement();
        xml_.StartElement("v:path");
        xml_.Attribute("o:connecttype", "none");
        xml_.EndElement();
        WriteTextBox(comment);
        WriteClientData(comment);
        xml_.EndElement();
    }

    void WriteTextBox(const CellComment& comment) {
        xml_.StartElement("v:textbox");
        xml_.Attribute("style", "mso-direction-alt:auto");
        if (comment.insets) {
            const auto& [left, top, right, bottom] = *comment.insets;
            xml_.Attribute("inset", fmt::format("{}pt,{}pt,{}pt,{}pt", left, top, right, bottom));
        }
        // The text is the comments part's; Excel writes an empty div, as a start and an end tag.
        xml_.StartElement("div");
        xml_.Attribute("style", "text-align:left");
        xml_.Raw("");
        xml_.EndElement();
        xml_.EndElement();
    }

    // Excel reads MoveWithCells and SizeWithCells the other way round: present, the note does not
    // move (or size) with its cells.
    void WriteClientData(const CellComment& comment) {
        xml_.StartElement("x:ClientData");
        xml_.Attribute("ObjectType", "Note");
        if (!comment.moveWithCells) {
            xml_.StartElement("x:MoveWithCells");
            xml_.EndElement();
        }
        if (!comment.sizeWithCells) {
            xml_.StartElement("x:SizeWithCells");
            xml_.EndElement();
        }
        const LegacyAnchor& anchor = comment.anchor;
        ValueElement("x:Anchor", fmt::format("{}, {}, {}, {}, {}, {}, {}, {}", anchor.leftColumn, anchor.leftOffset,
                                             anchor.topRow, anchor.topOffset, anchor.rightColumn, anchor.rightOffset,
                                             anchor.bottomRow, anchor.bottomOffset));
        ValueElement("x:AutoFill", "False");
        ValueElement("x:Row", std::to_string(comment.row - 1));
        ValueElement("x:Column", std::to_string(comment.column - 1));
        if (comment.visible) {
            xml_.StartElement("x:Visible");
            xml_.EndElement();
        }
        xml_.EndElement();
    }

    void ValueElement(std::string_view element, std::string_view value) {
        xml_.StartElement(element);
        xml_.LiteralText(value);
        xml_.EndElement();
    }

    XmlWriter& xml_;
};

}  // namespace

void WriteVmlDrawingPart(XmlWriter& xml, const SheetDocument& sheet, const std::vector<uint32_t>& noteIdBlocks) {
    VmlDrawingWriter(xml).Write(sheet, noteIdBlocks);
}

}  // namespace ooxml
