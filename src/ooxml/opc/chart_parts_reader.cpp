#include "ooxml/opc/chart_parts_reader.hpp"

#include "ooxml/chart/chart_drawing_reader.hpp"
#include "ooxml/chart/chart_reader.hpp"
#include "ooxml/opc/relationships_reader.hpp"

#include <algorithm>
#include <optional>
#include <string>

namespace ooxml {

namespace {

// Whether the engine can hold the chart: it has a group the document models, and each such group
// is drawn on a pair of the plot area's axes. Any other stays carried as it is.
bool Modelled(const ChartDocument& chart) {
    const auto& axes = chart.plotArea.axes;
    const auto hasAxis = [&](uint32_t id) {
        return std::any_of(axes.begin(), axes.end(), [id](const ChartAxis& axis) { return axis.id == id; });
    };
    return !chart.plotArea.groups.empty() &&
           std::all_of(chart.plotArea.groups.begin(), chart.plotArea.groups.end(), [&](const ChartGroup& group) {
               return group.axisIds.size() == 2 && hasAxis(group.axisIds[0]) && hasAxis(group.axisIds[1]);
           });
}

}  // namespace

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
    if (!chart || !Modelled(*chart)) {
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
