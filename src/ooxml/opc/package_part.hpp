#pragma once

#include "ooxml/opc/relationships_part.hpp"
#include "ooxml/xml/xml_writer.hpp"

#include <functional>
#include <string>
#include <string_view>

namespace ooxml {

// One part of a package being written: where it goes, its content type, what writes its bytes
// and its relationships to other parts. A new kind of part (a drawing, a preserved unknown part)
// is one more of these; content types and relationship parts follow from the list.
struct PackagePart {
    std::string path;  // inside the package, without a leading "/"
    std::string_view contentType;
    std::function<void(XmlWriter&)> write;
    Relationships relationships;
};

}  // namespace ooxml
