#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace ooxml {

struct DefinedName {
    std::string name;
    std::string formula;  // without the leading "="
    std::optional<uint32_t> localSheet;  // 0-based sheet position for a sheet-level name
    bool hidden = false;

    friend bool operator==(const DefinedName&, const DefinedName&) = default;
};

}  // namespace ooxml
