#include "excel/embedded/string_pool.hpp"

namespace excel::embedded {

uint32_t StringPool::Intern(std::string_view text) {
    auto [it, inserted] = plainIds_.try_emplace(std::string(text), static_cast<uint32_t>(strings_.size()));
    if (inserted) {
        strings_.push_back(ooxml::SharedString{std::string(text), {}});
    }
    return it->second;
}

uint32_t StringPool::Add(ooxml::SharedString richText) {
    if (richText.runs.empty()) {
        return Intern(richText.text);
    }
    strings_.push_back(std::move(richText));
    return static_cast<uint32_t>(strings_.size() - 1);
}

}  // namespace excel::embedded
