#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace excel::embedded {

inline constexpr int32_t MaxRow = 1048576;
inline constexpr int32_t MaxColumn = 16384;

// A rectangle of cells, 1-based and inclusive on every side.
struct CellBlock {
    int32_t top = 1;
    int32_t left = 1;
    int32_t bottom = 1;
    int32_t right = 1;

    friend bool operator==(const CellBlock&, const CellBlock&) = default;

    int32_t Rows() const { return bottom - top + 1; }
    int32_t Columns() const { return right - left + 1; }
    int64_t CellCount() const { return static_cast<int64_t>(Rows()) * Columns(); }
    bool Contains(int32_t row, int32_t column) const {
        return row >= top && row <= bottom && column >= left && column <= right;
    }
    bool Contains(const CellBlock& other) const {
        return other.top >= top && other.bottom <= bottom && other.left >= left && other.right <= right;
    }
    bool Intersects(const CellBlock& other) const {
        return other.top <= bottom && other.bottom >= top && other.left <= right && other.right >= left;
    }
};

// 1 -> "A", 28 -> "AB", 16384 -> "XFD".
std::string ColumnLetters(int32_t column);

// Case-insensitive; nullopt when empty, not letters, or beyond XFD.
std::optional<int32_t> ParseColumnLetters(std::string_view letters);

// The block as Range.Address prints it: "$A$1", "$A$1:$B$2"; a block spanning every row prints as
// columns ("$A:$B") and one spanning every column as rows ("$1:$3", the whole sheet "$1:$1048576").
std::string FormatBlock(const CellBlock& block, bool rowAbsolute, bool columnAbsolute);

// The block in absolute R1C1 notation: "R1C1", "R1C1:R2C2", "C1:C2", "R1:R3".
std::string FormatBlockR1C1(const CellBlock& block);

// Whether text reads as one cell in A1 notation ("A1", "xfd1048576"), which names may not.
bool LooksLikeA1Cell(std::string_view text);

// Whether text reads as an R1C1 reference: "R", "C", "R1", "C3", "RC", "R1C1" (any case).
bool LooksLikeR1C1Reference(std::string_view text);

struct ParsedReference {
    std::string sheet;  // empty when unqualified; never quoted
    std::vector<CellBlock> areas;
};

// Parses an A1-style reference: "A1", "$A$1", "a1:b2", "B2:A1" (normalised to A1:B2), "A:C", "3:5",
// "A1,C3:D4", "Sheet1!A1", "'My Sheet'!$A$1:$B$2", "'It''s'!A1". Nullopt when malformed or when any
// part lies outside A1:XFD1048576.
std::optional<ParsedReference> ParseA1Reference(std::string_view text);

}  // namespace excel::embedded
