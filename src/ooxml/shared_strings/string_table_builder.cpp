#include "ooxml/shared_strings/string_table_builder.hpp"

namespace ooxml {

uint32_t StringTableBuilder::Add(SharedString string) {
    if (string.runs.empty()) {
        return AddPlain(string.text);
    }
    strings_.push_back(std::move(string));
    return static_cast<uint32_t>(strings_.size() - 1);
}

uint32_t StringTableBuilder::AddPlain(std::string_view text) {
    // Entries appended by others since the last call are indexed first; the first equal one wins.
    for (; indexed_ < strings_.size(); ++indexed_) {
        if (strings_[indexed_].runs.empty()) {
            plainIndex_.emplace(strings_[indexed_].text, static_cast<uint32_t>(indexed_));
        }
    }
    const auto [found, added] = plainIndex_.emplace(std::string(text), static_cast<uint32_t>(strings_.size()));
    if (added) {
        strings_.push_back(SharedString{std::string(text), {}});
        indexed_ = strings_.size();
    }
    return found->second;
}

}  // namespace ooxml
