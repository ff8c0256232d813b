#include "support/string_services.hpp"

#include <algorithm>

namespace vos {

std::string StringServices::SplitFirstToken(std::string& text, std::string_view delimiter) const {
    const size_t position = delimiter.empty() ? std::string::npos : text.find(delimiter);
    if (position == std::string::npos) {
        std::string token = std::move(text);
        text.clear();
        return token;
    }
    std::string token = text.substr(0, position);
    text.erase(0, position + delimiter.size());
    return token;
}

bool StringServices::BeginsWith(std::string_view text, std::string_view prefix) const {
    return text.starts_with(prefix);
}

std::string StringServices::StripPrefix(std::string_view text, std::string_view prefix) const {
    return std::string(BeginsWith(text, prefix) ? text.substr(prefix.size()) : text);
}

bool StringServices::EndsWith(std::string_view text, std::string_view suffix) const {
    return text.ends_with(suffix);
}

bool StringServices::EqualIgnoringCase(std::string_view first, std::string_view second) const {
    const auto upper = [](char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; };
    return first.size() == second.size() &&
           std::equal(first.begin(), first.end(), second.begin(), [&](char a, char b) { return upper(a) == upper(b); });
}

std::string StringServices::Quoted(std::string_view text, char quote) const {
    std::string quoted(1, quote);
    for (char c : text) {
        if (c == quote)
            quoted += quote;
        quoted += c;
    }
    quoted += quote;
    return quoted;
}

}  // namespace vos
