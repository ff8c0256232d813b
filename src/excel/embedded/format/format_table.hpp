#pragma once

#include "excel/embedded/format/cell_format.hpp"

#include <cstddef>
#include <cstdint>
#include <unordered_map>
#include <vector>

namespace excel::embedded {

struct CellFormatHash {
    size_t operator()(const CellFormat& format) const;
};

// Excel's limit on the distinct cell formats a workbook holds.
inline constexpr std::size_t kMaxCellFormats = 65490;

// Excel's answer to a format past that limit.
inline constexpr const char* kTooManyCellFormats = "Too many different cell formats.";

// The workbook's cell formats, each stored once; cells, rows and columns hold an id. Id 0 is the
// default format.
class FormatTable {
public:
    FormatTable();

    // The id of the format, added when new; refused with Excel's error once the table holds
    // kMaxCellFormats formats.
    uint32_t Intern(const CellFormat& format);
    const CellFormat& Get(uint32_t id) const { return formats_[id]; }
    const std::vector<CellFormat>& All() const { return formats_; }
    bool Holds(const CellFormat& format) const { return ids_.count(format) != 0; }
    // How many more formats the table takes.
    std::size_t Room() const { return kMaxCellFormats - formats_.size(); }

private:
    std::vector<CellFormat> formats_;
    std::unordered_map<CellFormat, uint32_t, CellFormatHash> ids_;
};

}  // namespace excel::embedded
