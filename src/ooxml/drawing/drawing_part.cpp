#include "ooxml/drawing/drawing_part.hpp"

#include "ooxml/carried/carried_attributes.hpp"
#include "ooxml/carried/carried_element_writer.hpp"
#include "ooxml/drawingml/text_box_shape.hpp"

#include <algorithm>

namespace ooxml {

namespace {

class DrawingWriter {
public:
    DrawingWriter(XmlWriter& xml, const std::vector<std::string>& chartRelationshipIds)
        : xml_(xml), chartRelationshipIds_(chartRelationshipIds) {}

    void Write(const SheetDocument& sheet) {
        xml_.Declaration();
        xml_.StartElement("xdr:wsDr");
        xml_.Attribute("xmlns:xdr", "http://schemas.openxmlformats.org/drawingml/2006/spreadsheetDrawing");
        xml_.Attribute("xmlns:a", "http://schemas.openxmlformats.org/drawingml/2006/main");
        const CarriedMarkup* carried = sheet.carried ? &sheet.carried->drawing : nullptr;
        if (carried != nullptr) {
            WriteCarriedAttributes(xml_, carried->rootAttributes);
        }
        // The anchors the file had beyond text boxes and charts keep their place among them.
        CarriedElementWriter anchors(xml_, carried != nullptr ? &carried->elements : nullptr);
        for (std::size_t i = 0; i < sheet.shapes.size(); ++i) {
            anchors.Through(static_cast<uint16_t>(std::min<std::size_t>(i, UINT16_MAX)));
            WriteAnchor(sheet.shapes[i]);
        }
        anchors.Rest();
        xml_.EndElement();
    }

private:
    void WriteAnchor(const DrawingShape& shape) {
        xml_.StartElement("xdr:twoCellAnchor");
        if (shape.editAs == "oneCell" || shape.editAs == "absolute") {
            xml_.Attribute("editAs", shape.editAs);
        }
        WriteCorner("xdr:from", shape.from);
        WriteCorner("xdr:to", shape.to);
        if (shape.chart) {
            WriteChartFrame(shape);
        } else {
            WriteTextBoxShape(xml_, shape, SheetTextBoxDrawing);
        }
        xml_.StartElement("xdr:clientData");
        xml_.EndElement();
        xml_.EndElement();
    }

    void WriteCorner(std::string_view element, const CellAnchor& corner) {
        xml_.StartElement(element);
        NumberElement("xdr:col", corner.column);
        NumberElement("xdr:colOff", corner.columnOffset);
        NumberElement("xdr:row", corner.row);
        NumberElement("xdr:rowOff", corner.rowOffset);
        xml_.EndElement();
    }

    template <typename T>
    void NumberElement(std::string_view element, T value) {
        xml_.StartElement(element);
        xml_.Number(static_cast<double>(value));
        xml_.EndElement();
    }

    // A chart sits in a graphic frame whose own transform Excel leaves at zero: the anchor sizes it.
    void WriteChartFrame(const DrawingShape& frame) {
        xml_.StartElement("xdr:graphicFrame");
        xml_.Attribute("macro", frame.macro);
        WriteFrameNonVisualProperties(frame);
        xml_.StartElement("xdr:xfrm");
        xml_.StartElement("a:off");
        xml_.Attribute("x", 0);
        xml_.Attribute("y", 0);
        xml_.EndElement();
        xml_.StartElement("a:ext");
        xml_.Attribute("cx", 0);
        xml_.Attribute("cy", 0);
        xml_.EndElement();
        xml_.EndElement();
        xml_.StartElement("a:graphic");
        xml_.StartElement("a:graphicData");
        xml_.Attribute("uri", "http://schemas.openxmlformats.org/drawingml/2006/chart");
        xml_.StartElement("c:chart");
        xml_.Attribute("xmlns:c", "http://schemas.openxmlformats.org/drawingml/2006/chart");
        xml_.Attribute("xmlns:r", "http://schemas.openxmlformats.org/officeDocument/2006/relationships");
        xml_.Attribute("r:id", NextChartRelationshipId());
        xml_.EndElement();
        xml_.EndElement();
        xml_.EndElement();
        xml_.EndElement();
    }

    void WriteFrameNonVisualProperties(const DrawingShape& frame) {
        xml_.StartElement("xdr:nvGraphicFramePr");
        xml_.StartElement("xdr:cNvPr");
        xml_.Attribute("id", frame.id);
        xml_.Attribute("name", frame.name);
        if (frame.hidden) {
            xml_.Attribute("hidden", "1");
        }
        xml_.EndElement();
        xml_.StartElement("xdr:cNvGraphicFramePr");
        xml_.StartElement("a:graphicFrameLocks");
        xml_.EndElement();
        xml_.EndElement();
        xml_.EndElement();
    }

    std::string_view NextChartRelationshipId() {
        return nextChart_ < chartRelationshipIds_.size() ? std::string_view(chartRelationshipIds_[nextChart_++])
                                                         : std::string_view();
    }

    XmlWriter& xml_;
    const std::vector<std::string>& chartRelationshipIds_;
    std::size_t nextChart_ = 0;
};

}  // namespace

void WriteDrawingPart(XmlWriter& xml, const SheetDocument& sheet,
                      const std::vector<std::string>& chartRelationshipIds) {
    DrawingWriter(xml, chartRelationshipIds).Write(sheet);
}

}  // namespace ooxml
