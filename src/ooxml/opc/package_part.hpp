#pragma once

#include "ooxml/opc/relationships_part.hpp"
#include "ooxml/xml/xml_writer.hpp"

#include <functional>
#include <string>
#include <string_view>
#include <utility>

namespace ooxml {

// One part of a package being written: where it goes, its content type, what writes its bytes
// and its relationships to other parts. A new kind of part (a drawing, a preserved unknown part)
// is one more of these; content types and relationship parts follow from the list.
struct PackagePart {
    PackagePart(std::string path, std::string_view contentType, std::function<void(XmlWriter&)> write = {},
                Relationships relationships = {}, std::string_view verbatimRelationships = {})
        : path(std::move(path)),
          contentType(contentType),
          write(std::move(write)),
          relationships(std::move(relationships)),
          verbatimRelationships(verbatimRelationships) {}

    std::string path;  // inside the package, without a leading "/"
    std::string_view contentType;
    std::function<void(XmlWriter&)> write;
    Relationships relationships;
    // A carried part's relationship part as the opened file had it, written instead of relationships.
    std::string_view verbatimRelationships;
};

}  // namespace ooxml
