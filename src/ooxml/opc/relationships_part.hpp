#pragma once

#include "ooxml/xml/xml_writer.hpp"

#include <string>
#include <string_view>
#include <vector>

namespace ooxml {

inline constexpr std::string_view kRelationshipsContentType = "application/vnd.openxmlformats-package.relationships+xml";

// The relationships from one part (or from the package itself) to the parts it uses; their ids
// are what the part's XML refers to (r:id).
class Relationships {
public:
    struct Relationship {
        std::string id;
        std::string type;
        std::string target;
    };

    // Returns the new relationship's id ("rId1", "rId2", ...). target is relative to the source
    // part's folder.
    std::string Add(std::string_view type, std::string target);
    bool Empty() const noexcept { return relationships_.empty(); }
    void Write(XmlWriter& xml) const;

private:
    std::vector<Relationship> relationships_;
};

// Where the relationships of a part are stored: "xl/workbook.xml" -> "xl/_rels/workbook.xml.rels",
// and "" (the package) -> "_rels/.rels".
std::string RelationshipsPartPath(std::string_view partPath);

}  // namespace ooxml
