#pragma once

#include "excel/embedded/format/format_table.hpp"

#include <cstdint>
#include <functional>
#include <vector>

namespace excel::embedded {

// One formatting operation ("make bold", "set the top border") applied to format ids. Each
// distinct old id is edited and interned once; every further cell costs an array lookup.
class FormatChange {
public:
    using Edit = std::function<void(CellFormat&)>;

    FormatChange(FormatTable& table, Edit edit) : table_(table), edit_(std::move(edit)) {}

    uint32_t Apply(uint32_t id);

private:
    static constexpr uint32_t unknown = UINT32_MAX;

    FormatTable& table_;
    Edit edit_;
    std::vector<uint32_t> results_;
};

}  // namespace excel::embedded
