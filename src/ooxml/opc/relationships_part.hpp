#pragma once

#include "ooxml/document/relationship.hpp"
#include "ooxml/xml/xml_writer.hpp"

#include <string>
#include <string_view>
#include <unordered_set>
#include <vector>

namespace ooxml {

inline constexpr std::string_view kRelationshipsContentType =
    "application/vnd.openxmlformats-package.relationships+xml";

// The relationships from one part (or from the package itself) to the parts it uses; their ids
// are what the part's XML refers to (r:id).
class Relationships {
public:
    struct Entry {
        std::string id;
        std::string type;
        std::string target;
        bool external = false;
    };

    // Returns the new relationship's id: the first of "rId1", "rId2", ... not yet taken. target is
    // relative to the source part's folder.
    std::string Add(std::string_view type, std::string target);
    // Keeps a relationship of an opened file under its own id, which the kept markup refers to.
    // Kept relationships are added before new ones, so that new ids pass theirs by.
    void Keep(const Relationship& relationship, std::string_view sourcePath);
    bool Empty() const noexcept { return relationships_.empty(); }
    void Write(XmlWriter& xml) const;

private:
    std::vector<Entry> relationships_;
    // The ids taken, and the number below which every "rIdN" is: a workbook of 70,000 sheets adds
    // as many relationships, each in constant time.
    std::unordered_set<std::string> ids_;
    std::size_t firstFreeNumber_ = 1;
};

// Where the relationships of a part are stored: "xl/workbook.xml" -> "xl/_rels/workbook.xml.rels",
// and "" (the package) -> "_rels/.rels".
std::string RelationshipsPartPath(std::string_view partPath);

// The target by which a part refers to another: "xl/worksheets/sheet1.xml" to "xl/media/a.png"
// is "../media/a.png"; from the package itself ("") the part name.
std::string RelativeTarget(std::string_view sourcePath, std::string_view targetPath);

}  // namespace ooxml
