#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <set>
#include <string_view>
#include <vector>

namespace ooxml {

// VML shapes are numbered in blocks of 1,024 ids that no two drawings of a workbook share: block b
// holds the ids 1024 b to 1024 b + 1023, written _x0000_s(id). A drawing lists its blocks in its
// <o:idmap data="1,2">.
inline constexpr uint32_t kVmlIdsPerBlock = 1024;

// The number of a shape id as VML writes it ("_x0000_s1025" -> 1025); nothing for another id.
std::optional<uint32_t> ParseVmlShapeNumber(std::string_view id);

// The blocks an idmap's data lists ("1,2", "1 2"), ascending, each once.
std::vector<uint32_t> ParseVmlIdBlocks(std::string_view data);

// The blocks listed by the idmap of a VML drawing's markup. VML is not always XML, so the markup is
// scanned for the idmap rather than parsed.
std::vector<uint32_t> FindVmlIdBlocks(std::string_view markup);

// The ids count shapes take from blocks, in order: in each block from 1024 b + 1, or on from the
// block before when the block follows it. Fewer when the blocks hold fewer.
std::vector<uint32_t> VmlShapeIds(const std::vector<uint32_t>& blocks, std::size_t count);

// Hands out the blocks of the drawings a workbook writes: the blocks the drawings it keeps use are
// reserved first, and each drawing written takes the lowest free ones, from block 1.
class VmlIdBlocks {
public:
    void Reserve(uint32_t block) { taken_.insert(block); }
    void Reserve(const std::vector<uint32_t>& blocks) { taken_.insert(blocks.begin(), blocks.end()); }
    // The free blocks that number shapeCount shapes, at least one; they are taken.
    std::vector<uint32_t> Take(std::size_t shapeCount);

private:
    std::set<uint32_t> taken_;
};

}  // namespace ooxml
