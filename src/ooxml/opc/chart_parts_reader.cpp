#include "ooxml/opc/chart_parts_reader.hpp"

#include "ooxml/chart/chart_drawing_reader.hpp"
#include "ooxml/chart/chart_reader.hpp"
#include "ooxml/opc/relationships_reader.hpp"

#include <optional>
#include <string>

namespace ooxml {

std::shared_ptr<const ChartDocument> ChartPartsReader::Read(const Relationship& relationship) {
    if (relationship.external || !HasRelationshipType(relationship, "chart")) {
        return nullptr;
    }
    const std::optional<std::string> xml = archive_.Read(relationship.target);
    if (!xml) {
        return nullptr;
    }
    const std::vector<Relationship> relationships = ReadRelationships(archive_, relationship.target);
    const Relationship* drawing = nullptr;
    std::optional<ChartDocument> chart = ReadChart(*xml, [&](std::string_view id, ChartDocument& read) {
        const Relationship* shapes = FindRelationship(relationships, id);
        if (shapes == nullptr || shapes->external || !HasRelationshipType(*shapes, "chartUserShapes")) {
            return false;
        }
        const std::optional<std::string> shapesXml = archive_.Read(shapes->target);
        if (!shapesXml || !ReadChartDrawing(*shapesXml, read)) {
            return false;
        }
        drawing = shapes;
        return true;
    });
    if (!chart) {
        return nullptr;
    }
    carriedParts_.Rewritten(relationship.target);
    for (const Relationship& kept : relationships) {
        if (&kept != drawing) {
            chart->carried.relationships.push_back(kept);
        }
    }
    if (drawing != nullptr) {
        carriedParts_.Rewritten(drawing->target);
        chart->drawingCarried.relationships = ReadRelationships(archive_, drawing->target);
    }
    return charts_.emplace_back(std::make_shared<ChartDocument>(std::move(*chart)));
}

std::vector<std::vector<Relationship>*> ChartPartsReader::KeptRelationships() {
    std::vector<std::vector<Relationship>*> kept;
    for (const std::shared_ptr<ChartDocument>& chart : charts_) {
        kept.push_back(&chart->carried.relationships);
        kept.push_back(&chart->drawingCarried.relationships);
    }
    return kept;
}

}  // namespace ooxml
