#pragma once

#include "ooxml/workbook_document.hpp"

#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace excel::embedded {

// The workbook's cell texts and formula texts. Plain texts are stored once and shared; rich texts
// (with runs) get their own entry. Entries are never removed while the workbook is open; saving
// writes only the ones cells still use.
class StringPool {
public:
    uint32_t Intern(std::string_view text);
    uint32_t Add(ooxml::SharedString richText);
    const ooxml::SharedString& Get(uint32_t id) const { return strings_[id]; }

private:
    std::vector<ooxml::SharedString> strings_;
    std::unordered_map<std::string, uint32_t> plainIds_;
};

}  // namespace excel::embedded
