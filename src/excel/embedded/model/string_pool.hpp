#pragma once

#include "excel/embedded/text/rich_text.hpp"

#include <cstdint>
#include <deque>
#include <string>
#include <string_view>
#include <unordered_map>

namespace excel::embedded {

// The workbook's cell texts and formula texts. Plain texts are stored once and shared; rich texts
// (with runs) get their own entry. Entries are never removed while the workbook is open; saving
// writes only the ones cells still use.
class StringPool {
public:
    StringPool() = default;
    // The index views the pool's own texts, so a copy would view the original's.
    StringPool(const StringPool&) = delete;
    StringPool& operator=(const StringPool&) = delete;

    uint32_t Intern(std::string_view text);
    uint32_t Add(RichText richText);
    const RichText& Get(uint32_t id) const { return strings_[id]; }

private:
    // A deque never moves its elements, so the index can key on views of their texts: a lookup
    // allocates nothing and each text is stored once.
    std::deque<RichText> strings_;
    std::unordered_map<std::string_view, uint32_t> plainIds_;
};

}  // namespace excel::embedded
