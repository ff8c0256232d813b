#include "excel/embedded/model/cells/column_store.hpp"

#include "excel/embedded/model/cell_address.hpp"

#include <algorithm>

namespace excel::embedded {

namespace {

const ColumnInfo defaultColumn{};

// Appends run to runs, leaving out default info and extending the last run when run continues it
// with equal info.
void AppendJoined(std::vector<ColumnRun>& runs, const ColumnRun& run) {
    if (run.info == defaultColumn) {
        return;
    }
    if (!runs.empty() && runs.back().last + 1 == run.first && runs.back().info == run.info) {
        runs.back().last = run.last;
        return;
    }
    runs.push_back(run);
}

// The first run ending at column or later.
auto RunEndingAtOrAfter(auto& runs, int32_t column) {
    return std::partition_point(runs.begin(), runs.end(), [&](const ColumnRun& run) { return run.last < column; });
}

}  // namespace

const ColumnInfo& ColumnStore::Get(int32_t column) const {
    const auto it = RunEndingAtOrAfter(runs_, column);
    return it != runs_.end() && it->first <= column ? it->info : defaultColumn;
}

void ColumnStore::ForEachSpan(int32_t first, int32_t last, const Visit& visit) const {
    if (first > last) {
        return;
    }
    int32_t next = first;
    for (auto it = RunEndingAtOrAfter(runs_, first); it != runs_.end() && it->first <= last; ++it) {
        if (it->first > next) {
            visit(next, it->first - 1, defaultColumn);
        }
        next = std::max(it->first, first);
        const int32_t end = std::min(it->last, last);
        visit(next, end, it->info);
        next = end + 1;
    }
    if (next <= last) {
        visit(next, last, defaultColumn);
    }
}

void ColumnStore::Update(int32_t first, int32_t last, const Change& change) {
    if (first > last) {
        return;
    }
    const size_t begin = splitBefore(first);
    const size_t end = splitBefore(last + 1);
    std::vector<ColumnRun> spans;
    ForEachSpan(first, last, [&](int32_t spanFirst, int32_t spanLast, const ColumnInfo& info) {
        spans.push_back(ColumnRun{spanFirst, spanLast, info});
    });

    // Rebuilds the changed runs together with their neighbours, so equal runs on either side join.
    const size_t from = begin > 0 ? begin - 1 : begin;
    const size_t to = end < runs_.size() ? end + 1 : end;
    std::vector<ColumnRun> rebuilt;
    rebuilt.reserve(spans.size() + 2);
    if (from < begin) {
        rebuilt.push_back(runs_[from]);
    }
    for (ColumnRun& span : spans) {
        change(span.info);
        AppendJoined(rebuilt, span);
    }
    if (end < to) {
        AppendJoined(rebuilt, runs_[end]);
    }
    const auto position =
        runs_.erase(runs_.begin() + static_cast<std::ptrdiff_t>(from), runs_.begin() + static_cast<std::ptrdiff_t>(to));
    runs_.insert(position, rebuilt.begin(), rebuilt.end());
}

void ColumnStore::Insert(int32_t at, int32_t count, int32_t copyFrom) {
    if (count <= 0) {
        return;
    }
    const ColumnInfo copied = copyFrom >= 1 ? Get(copyFrom) : defaultColumn;
    const size_t moved = splitBefore(at);
    for (auto it = runs_.begin() + static_cast<std::ptrdiff_t>(moved); it != runs_.end(); ++it) {
        it->first += count;
        it->last = std::min(it->last + count, MaxColumn);
    }
    std::erase_if(runs_, [](const ColumnRun& run) { return run.first > MaxColumn; });
    Update(at, std::min(at + count - 1, MaxColumn), [&](ColumnInfo& info) { info = copied; });
}

void ColumnStore::Remove(int32_t at, int32_t count) {
    if (count <= 0) {
        return;
    }
    const size_t from = splitBefore(at);
    const size_t to = splitBefore(std::min(at + count, MaxColumn + 1));
    const auto kept =
        runs_.erase(runs_.begin() + static_cast<std::ptrdiff_t>(from), runs_.begin() + static_cast<std::ptrdiff_t>(to));
    for (auto it = kept; it != runs_.end(); ++it) {
        it->first -= count;
        it->last -= count;
    }
    joinAt(from);
}

size_t ColumnStore::splitBefore(int32_t column) {
    const auto it = RunEndingAtOrAfter(runs_, column);
    const auto index = static_cast<size_t>(it - runs_.begin());
    if (it == runs_.end() || it->first >= column) {
        return index;
    }
    ColumnRun tail = *it;
    tail.first = column;
    it->last = column - 1;
    runs_.insert(it + 1, tail);
    return index + 1;
}

void ColumnStore::joinAt(size_t index) {
    if (index == 0 || index >= runs_.size()) {
        return;
    }
    ColumnRun& before = runs_[index - 1];
    const ColumnRun& after = runs_[index];
    if (before.last + 1 == after.first && before.info == after.info) {
        before.last = after.last;
        runs_.erase(runs_.begin() + static_cast<std::ptrdiff_t>(index));
    }
}

}  // namespace excel::embedded
