#pragma once

#include <cstdint>
#include <functional>
#include <vector>

namespace excel::embedded {

struct ColumnInfo {
    double width = -1.0;  // characters; negative = the sheet's standard width
    // The width an opened file gave the column, in the file's units, saved again unchanged while
    // width stays as read: Excel keeps widths in whole pixels, and a width another program or
    // screen wrote need not be one that whole pixels give back. Negative = none.
    double fileWidth = -1.0;
    // The width was set (ColumnWidth, or a file marking it customWidth) rather than fitted to the
    // content or copied from the standard width.
    bool customWidth = false;
    uint32_t format = 0;  // 0 = no column format
    bool hidden = false;
    uint8_t outlineLevel = 0;  // 0 (not grouped) .. 7
    bool collapsed = false;    // the group the column closes is collapsed

    bool HasWidth() const { return width >= 0.0; }
    // Sets the width as ColumnWidth does: a custom width, no longer the file's.
    void SetWidth(double characters) {
        width = characters;
        fileWidth = -1.0;
        customWidth = true;
    }
    friend bool operator==(const ColumnInfo&, const ColumnInfo&) = default;
};

// Columns first..last, all with the same info.
struct ColumnRun {
    int32_t first = 0;
    int32_t last = 0;
    ColumnInfo info;

    int32_t Count() const { return last - first + 1; }
    friend bool operator==(const ColumnRun&, const ColumnRun&) = default;
};

// Per-column width, format and visibility, kept as runs of equal info the way a file's column
// spans are: whole-sheet settings cost one run instead of 16,384 entries, and editing or reading
// a range of columns costs a step per run, not per column.
class ColumnStore {
public:
    using Change = std::function<void(ColumnInfo&)>;
    using Visit = std::function<void(int32_t first, int32_t last, const ColumnInfo& info)>;

    const ColumnInfo& Get(int32_t column) const;
    // Applies change once to each span of equal info in first..last (default info where no run
    // is), left to right; adjacent columns left with equal info join one run.
    void Update(int32_t first, int32_t last, const Change& change);
    // Visits first..last as spans of equal info, left to right, default spans included.
    void ForEachSpan(int32_t first, int32_t last, const Visit& visit) const;
    // The columns whose info is not the default: ascending, disjoint, adjacent runs differ.
    const std::vector<ColumnRun>& Runs() const { return runs_; }

    // Inserts count columns before column at, each a copy of copyFrom's info (0 = default);
    // columns pushed past the last one are dropped.
    void Insert(int32_t at, int32_t count, int32_t copyFrom);
    // Removes count columns from column at; default columns come in at the end.
    void Remove(int32_t at, int32_t count);

private:
    // Cuts the run holding both column - 1 and column in two; returns the index of the first run
    // starting at column or later.
    size_t splitBefore(int32_t column);
    // Joins runs[index - 1] and runs[index] when they touch and hold equal info.
    void joinAt(size_t index);

    std::vector<ColumnRun> runs_;
};

}  // namespace excel::embedded
