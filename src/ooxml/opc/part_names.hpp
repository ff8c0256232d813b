#pragma once

#include <cstdint>
#include <set>
#include <string>
#include <string_view>

namespace ooxml {

// Names the parts the writer makes ("xl/drawings/drawing3.xml") so that none takes the name of a
// part carried from the opened file, whatever the case.
class PartNames {
public:
    void Take(std::string_view partName);
    // The first free name prefix + n + suffix from n = counter + 1 on; counter becomes that n.
    std::string Next(std::string_view prefix, uint32_t& counter, std::string_view suffix);

private:
    std::set<std::string> taken_;  // lower case
};

}  // namespace ooxml
