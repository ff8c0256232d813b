#pragma once

#include <string>

namespace ooxml {

// A relationship of a part as a package holds it, with an internal target resolved to a part name.
struct Relationship {
    std::string id;
    std::string type;    // the full relationship type URI
    std::string target;  // a part name without the leading "/", or an external target as written
    bool external = false;

    friend bool operator==(const Relationship&, const Relationship&) = default;
};

}  // namespace ooxml
