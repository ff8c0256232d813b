#pragma once

#include "ooxml/document/workbook_document.hpp"
#include "ooxml/opc/package_part.hpp"

#include <set>
#include <string>
#include <vector>

namespace ooxml {

// The carried parts the saved package keeps: those its kept relationships still lead to, directly
// or through other carried parts. A part only a deleted sheet used is left out with it.
class CarriedPartsPlan {
public:
    // workbookRelationships: those of the carried ones the workbook part keeps.
    CarriedPartsPlan(const WorkbookDocument& document, const std::vector<Relationship>& workbookRelationships);

    // The kept parts, each written with its own bytes (or the document's moved ones) and relationship part.
    std::vector<PackagePart> Parts() const;
    // Whether a kept part has that name.
    bool Keeps(const std::string& partName) const { return kept_.count(partName) != 0; }
    // The kept parts' names, to make the writer's own names differ from them.
    const std::set<std::string>& Names() const { return kept_; }
    // The kept part a relationship leads to; null for an external one or a part not kept.
    const CarriedPart* PartOf(const Relationship& relationship) const;

private:
    void Follow(const std::vector<Relationship>& relationships);

    const CarriedWorkbook* carried_;
    const std::map<std::string, std::string>& movedParts_;
    std::set<std::string> kept_;
};

}  // namespace ooxml
