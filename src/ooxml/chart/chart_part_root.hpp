#pragma once

#include <pugixml.hpp>

#include <span>
#include <string>
#include <string_view>

namespace ooxml {

// A prefix's declaration on a part's root ("xmlns:c") and the namespace it must name; one not
// required may be left out, and is then declared where it is used.
struct NamespaceBinding {
    std::string_view attribute;
    std::string_view uri;
    bool required = true;
};

// Parses a chart part's text (kept by document) and gives its root when that is the qualified
// element rootName binding the prefixes as given: what the carried markup relies on. An empty node
// when the part is not well formed or binds them otherwise.
pugi::xml_node ReadChartPartRoot(pugi::xml_document& document, std::string& text, std::string_view rootName,
                                 std::span<const NamespaceBinding> bindings);

}  // namespace ooxml
