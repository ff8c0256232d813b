#pragma once

#include "ooxml/document/workbook_document.hpp"

#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace ooxml {

// Adds the strings that cells hold outside the shared string table (inline strings, formula
// strings, error values) to the workbook's table, reusing an equal plain entry.
class StringTableBuilder {
public:
    explicit StringTableBuilder(std::vector<SharedString>& strings) : strings_(strings) {}

    uint32_t Add(SharedString string);
    uint32_t AddPlain(std::string_view text);

private:
    std::vector<SharedString>& strings_;
    std::unordered_map<std::string, uint32_t> plainIndex_;
    std::size_t indexed_ = 0;  // entries of strings_ already in plainIndex_
};

}  // namespace ooxml
