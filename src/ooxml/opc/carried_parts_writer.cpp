#include "ooxml/opc/carried_parts_writer.hpp"

#include "ooxml/document/chart_document.hpp"

namespace ooxml {

CarriedPartsPlan::CarriedPartsPlan(const WorkbookDocument& document,
                                   const std::vector<Relationship>& workbookRelationships)
    : carried_(document.carried.get()), movedParts_(document.movedParts) {
    if (carried_ == nullptr) {
        return;
    }
    Follow(carried_->packageRelationships);
    Follow(workbookRelationships);
    for (const CarriedSheet& sheet : carried_->sheets) {
        Follow({sheet.relationship});
    }
    for (const SheetDocument& sheet : document.sheets) {
        if (sheet.carried) {
            Follow(sheet.carried->worksheet.relationships);
            Follow(sheet.carried->drawing.relationships);
            Follow(sheet.carried->legacyDrawing.relationships);
        }
        for (const DrawingShape& shape : sheet.shapes) {
            if (shape.chart) {
                Follow(shape.chart->carried.relationships);
                Follow(shape.chart->drawingCarried.relationships);
            }
        }
    }
}

void CarriedPartsPlan::Follow(const std::vector<Relationship>& relationships) {
    std::vector<const Relationship*> pending;
    for (const Relationship& relationship : relationships) {
        pending.push_back(&relationship);
    }
    while (!pending.empty()) {
        const Relationship* relationship = pending.back();
        pending.pop_back();
        if (relationship->external) {
            continue;
        }
        const auto part = carried_->parts.find(relationship->target);
        if (part == carried_->parts.end() || !kept_.insert(part->first).second) {
            continue;
        }
        for (const Relationship& next : part->second.relationships) {
            pending.push_back(&next);
        }
    }
}

const CarriedPart* CarriedPartsPlan::PartOf(const Relationship& relationship) const {
    if (relationship.external || kept_.count(relationship.target) == 0) {
        return nullptr;
    }
    return &carried_->parts.at(relationship.target);
}

std::vector<PackagePart> CarriedPartsPlan::Parts() const {
    std::vector<PackagePart> parts;
    for (const std::string& name : kept_) {
        const CarriedPart& part = carried_->parts.at(name);
        const auto moved = movedParts_.find(name);
        const std::string& bytes = moved != movedParts_.end() ? moved->second : part.bytes;
        parts.push_back({name, part.contentType, [&bytes](XmlWriter& xml) { xml.Raw(bytes); }, {},
                         part.relationshipsBytes});
    }
    return parts;
}

}  // namespace ooxml
