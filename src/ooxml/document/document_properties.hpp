#pragma once

#include <ctime>
#include <optional>
#include <string>

namespace ooxml {

struct DocumentProperties {
    std::string creator;
    std::string lastModifiedBy;
    std::optional<std::time_t> created;
    std::optional<std::time_t> modified;
};

}  // namespace ooxml
