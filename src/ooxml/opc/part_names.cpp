#include "ooxml/opc/part_names.hpp"

#include <algorithm>
#include <cctype>

namespace ooxml {

namespace {

std::string Lower(std::string_view name) {
    std::string lower(name);
    std::transform(lower.begin(), lower.end(), lower.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return lower;
}

}  // namespace

void PartNames::Take(std::string_view partName) {
    taken_.insert(Lower(partName));
}

std::string PartNames::Next(std::string_view prefix, uint32_t& counter, std::string_view suffix) {
    for (;;) {
        std::string name = std::string(prefix) + std::to_string(++counter) + std::string(suffix);
        if (taken_.insert(Lower(name)).second) {
            return name;
        }
    }
}

std::string PartNames::Claim(std::string_view partName) {
    if (taken_.insert(Lower(partName)).second) {
        return std::string(partName);
    }
    const std::size_t dot = partName.rfind('.');
    uint32_t counter = 1;
    return Next(partName.substr(0, dot), counter, dot == std::string_view::npos ? "" : partName.substr(dot));
}

}  // namespace ooxml
