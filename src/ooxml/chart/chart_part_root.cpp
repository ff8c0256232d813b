#include "ooxml/chart/chart_part_root.hpp"

#include "ooxml/xml/xml_part_parser.hpp"

#include <algorithm>

namespace ooxml {

pugi::xml_node ReadChartPartRoot(pugi::xml_document& document, std::string& text, std::string_view rootName,
                                 std::span<const NamespaceBinding> bindings) {
    if (!HoldsNoNul(text) ||
        !document.load_buffer_inplace(text.data(), text.size(), XmlPartParseOptions, pugi::encoding_auto)) {
        return {};
    }
    const pugi::xml_node root = document.document_element();
    const bool bound = std::all_of(bindings.begin(), bindings.end(), [root](const NamespaceBinding& binding) {
        const pugi::xml_attribute declared = root.attribute(std::string(binding.attribute).c_str());
        return declared ? std::string_view(declared.value()) == binding.uri : !binding.required;
    });
    return bound && std::string_view(root.name()) == rootName ? root : pugi::xml_node();
}

}  // namespace ooxml
