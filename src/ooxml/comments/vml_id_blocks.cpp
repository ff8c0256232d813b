#include "ooxml/comments/vml_id_blocks.hpp"

#include <algorithm>
#include <charconv>

namespace ooxml {

namespace {

constexpr std::string_view ShapeIdPrefix = "_x0000_s";
// The last block whose ids are all 32-bit numbers.
constexpr uint32_t LastBlock = UINT32_MAX / kVmlIdsPerBlock - 1;

std::optional<uint32_t> ParseNumber(std::string_view text) {
    uint32_t value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (text.empty() || error != std::errc() || end != text.data() + text.size()) {
        return std::nullopt;
    }
    return value;
}

bool Separator(char c) {
    return c == ',' || c == ' ' || c == '\t' || c == '\r' || c == '\n';
}

}  // namespace

std::optional<uint32_t> ParseVmlShapeNumber(std::string_view id) {
    if (!id.starts_with(ShapeIdPrefix)) {
        return std::nullopt;
    }
    return ParseNumber(id.substr(ShapeIdPrefix.size()));
}

std::vector<uint32_t> ParseVmlIdBlocks(std::string_view data) {
    std::set<uint32_t> blocks;
    while (!data.empty()) {
        const auto separator = std::find_if(data.begin(), data.end(), Separator);
        const std::size_t length = static_cast<std::size_t>(separator - data.begin());
        const std::optional<uint32_t> block = ParseNumber(data.substr(0, length));
        if (block && *block <= LastBlock) {
            blocks.insert(*block);
        }
        data.remove_prefix(std::min(length + 1, data.size()));
    }
    return {blocks.begin(), blocks.end()};
}

std::vector<uint32_t> FindVmlIdBlocks(std::string_view markup) {
    // <o:idmap v:ext="edit" data="1,2"/>, with whatever prefix and quotes.
    const std::size_t idmap = markup.find("idmap");
    if (idmap == std::string_view::npos) {
        return {};
    }
    const std::string_view element = markup.substr(idmap, markup.find('>', idmap) - idmap);
    std::size_t data = element.find("data");
    while (data != std::string_view::npos) {
        std::size_t at = data + 4;
        while (at < element.size() && (element[at] == ' ' || element[at] == '=')) {
            ++at;
        }
        if (at < element.size() && (element[at] == '"' || element[at] == '\'') && data > 0 &&
            (element[data - 1] == ' ' || element[data - 1] == '\t' || element[data - 1] == '\n')) {
            const std::size_t end = element.find(element[at], at + 1);
            return ParseVmlIdBlocks(element.substr(at + 1, end == std::string_view::npos ? end : end - at - 1));
        }
        data = element.find("data", data + 4);
    }
    return {};
}

std::vector<uint32_t> VmlShapeIds(const std::vector<uint32_t>& blocks, std::size_t count) {
    std::vector<uint32_t> ids;
    for (std::size_t i = 0; i < blocks.size() && ids.size() < count; ++i) {
        const bool followsOn = i > 0 && blocks[i] == blocks[i - 1] + 1;
        uint32_t id = blocks[i] * kVmlIdsPerBlock + (followsOn ? 0 : 1);
        for (; id < (blocks[i] + 1) * kVmlIdsPerBlock && ids.size() < count; ++id) {
            ids.push_back(id);
        }
    }
    return ids;
}

std::vector<uint32_t> VmlIdBlocks::Take(std::size_t shapeCount) {
    std::vector<uint32_t> blocks;
    std::size_t capacity = 0;
    for (uint32_t block = 1; blocks.empty() || capacity < shapeCount; ++block) {
        if (taken_.insert(block).second) {
            const bool followsOn = !blocks.empty() && blocks.back() + 1 == block;
            capacity += kVmlIdsPerBlock - (followsOn ? 0 : 1);
            blocks.push_back(block);
        }
    }
    return blocks;
}

}  // namespace ooxml
