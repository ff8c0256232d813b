#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace ooxml {

struct DefinedName {
    std::string name;
    std::string formula;  // without the leading "="
    std::optional<uint32_t> localSheet;  // 0-based sheet position for a sheet-level name
    bool hidden = false;
    // What else the file said of the name (comment, function, vbProcedure, shortcutKey, ...), as
    // qualified attribute names and values.
    std::vector<std::pair<std::string, std::string>> otherAttributes = {};

    friend bool operator==(const DefinedName&, const DefinedName&) = default;
};

}  // namespace ooxml
