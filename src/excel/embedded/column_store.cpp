#include "excel/embedded/column_store.hpp"

#include "excel/embedded/cell_address.hpp"

namespace excel::embedded {

namespace {
const ColumnInfo defaultColumn{};
}

const ColumnInfo& ColumnStore::Get(int32_t column) const {
    return columns_.empty() ? defaultColumn : columns_[static_cast<size_t>(column - 1)];
}

ColumnInfo& ColumnStore::Edit(int32_t column) {
    if (columns_.empty()) {
        columns_.resize(MaxColumn);
    }
    return columns_[static_cast<size_t>(column - 1)];
}

void ColumnStore::Insert(int32_t at, int32_t count, int32_t copyFrom) {
    if (columns_.empty()) {
        return;
    }
    const ColumnInfo copied = copyFrom >= 1 ? Get(copyFrom) : ColumnInfo{};
    const auto position = columns_.begin() + (at - 1);
    columns_.insert(position, static_cast<size_t>(count), copied);
    columns_.resize(MaxColumn);
}

void ColumnStore::Remove(int32_t at, int32_t count) {
    if (columns_.empty()) {
        return;
    }
    const auto first = columns_.begin() + (at - 1);
    columns_.erase(first, first + count);
    columns_.resize(MaxColumn);
}

}  // namespace excel::embedded
