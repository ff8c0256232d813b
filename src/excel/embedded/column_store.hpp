#pragma once

#include <cstdint>
#include <vector>

namespace excel::embedded {

struct ColumnInfo {
    double width = -1.0;  // characters; negative = the sheet's standard width
    uint32_t format = 0;  // 0 = no column format
    bool hidden = false;

    bool HasCustomWidth() const { return width >= 0.0; }
    friend bool operator==(const ColumnInfo&, const ColumnInfo&) = default;
};

// Per-column width, format and visibility. Stored densely once any column is set (16,384 small
// entries), so whole-sheet formatting and geometry are simple loops.
class ColumnStore {
public:
    const ColumnInfo& Get(int32_t column) const;
    ColumnInfo& Edit(int32_t column);
    bool Allocated() const { return !columns_.empty(); }

    // Inserts count columns before column at, each a copy of copyFrom's info (0 = default);
    // columns pushed past the last one are dropped.
    void Insert(int32_t at, int32_t count, int32_t copyFrom);
    // Removes count columns from column at; default columns come in at the end.
    void Remove(int32_t at, int32_t count);

private:
    std::vector<ColumnInfo> columns_;
};

}  // namespace excel::embedded
