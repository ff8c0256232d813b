#include "excel/embedded/format/format_table.hpp"

#include "excel/embedded/engine_errors.hpp"

#include <functional>
#include <string>

namespace excel::embedded {

namespace {

class HashBuilder {
public:
    template <class T>
    HashBuilder& Add(const T& value) {
        hash_ ^= std::hash<T>{}(value) + 0x9e3779b97f4a7c15ULL + (hash_ << 6) + (hash_ >> 2);
        return *this;
    }
    HashBuilder& Add(const FormatColor& color) {
        return Add(color.kind).Add(color.argb).Add(color.index).Add(color.tint);
    }
    HashBuilder& Add(const BorderLine& line) { return Add(line.style).Add(line.color); }
    size_t Value() const { return hash_; }

private:
    size_t hash_ = 0;
};

}  // namespace

size_t CellFormatHash::operator()(const CellFormat& format) const {
    HashBuilder hash;
    const FontFormat& font = format.font;
    hash.Add(format.numberFormat).Add(font.name).Add(font.size).Add(font.bold).Add(font.italic);
    hash.Add(font.strikethrough).Add(font.underline).Add(font.script).Add(font.color).Add(font.family).Add(font.scheme);
    hash.Add(font.charset);
    hash.Add(format.fill.pattern).Add(format.fill.foreground).Add(format.fill.background).Add(format.fill.gradient);
    const CellBorder& border = format.border;
    hash.Add(border.left).Add(border.right).Add(border.top).Add(border.bottom).Add(border.diagonal);
    hash.Add(border.diagonalUp).Add(border.diagonalDown);
    const CellAlignment& alignment = format.alignment;
    hash.Add(alignment.horizontal).Add(alignment.vertical).Add(alignment.wrapText).Add(alignment.shrinkToFit);
    hash.Add(alignment.indent).Add(alignment.textRotation);
    hash.Add(format.quotePrefix).Add(format.locked).Add(format.hidden).Add(format.pivotButton).Add(format.style);
    return hash.Value();
}

FormatTable::FormatTable() {
    Intern(CellFormat{});
}

uint32_t FormatTable::Intern(const CellFormat& format) {
    if (const auto found = ids_.find(format); found != ids_.end()) {
        return found->second;
    }
    if (Room() == 0) {
        ThrowRefused(kTooManyCellFormats);
    }
    const auto id = static_cast<uint32_t>(formats_.size());
    formats_.push_back(format);
    ids_.emplace(format, id);
    return id;
}

}  // namespace excel::embedded
