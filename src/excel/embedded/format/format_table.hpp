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

// The workbook's cell formats, each stored once; cells, rows and columns hold an id. Id 0 is the
// default format.
class FormatTable {
public:
    FormatTable();

    uint32_t Intern(const CellFormat& format);
    const CellFormat& Get(uint32_t id) const { return formats_[id]; }
    const std::vector<CellFormat>& All() const { return formats_; }

private:
    std::vector<CellFormat> formats_;
    std::unordered_map<CellFormat, uint32_t, CellFormatHash> ids_;
};

}  // namespace excel::embedded
