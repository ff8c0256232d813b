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
    // The name of a part the writer makes once ("xl/styles.xml"), or when an opened file keeps a
    // part of that name under a relationship the reader did not know, the first free one with a
    // number before its extension ("xl/styles2.xml").
    std::string Claim(std::string_view partName);

private:
    std::set<std::string> taken_;  // lower case
};

}  // namespace ooxml
