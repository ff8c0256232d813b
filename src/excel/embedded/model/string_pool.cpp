#include "excel/embedded/model/string_pool.hpp"

namespace excel::embedded {

uint32_t StringPool::Intern(std::string_view text) {
    if (const auto found = plainIds_.find(text); found != plainIds_.end()) {
        return found->second;
    }
    const auto id = static_cast<uint32_t>(strings_.size());
    strings_.push_back(RichText{std::string(text), {}});
    plainIds_.emplace(strings_.back().text, id);
    return id;
}

uint32_t StringPool::Add(RichText richText) {
    if (richText.runs.empty()) {
        return Intern(richText.text);
    }
    strings_.push_back(std::move(richText));
    return static_cast<uint32_t>(strings_.size() - 1);
}

}  // namespace excel::embedded
