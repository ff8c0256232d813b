#include "excel/embedded/format/format_table.hpp"

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
    HashBuilder& Add(const ooxml::Color& color) {
        return Add(static_cast<int>(color.kind)).Add(color.argb).Add(color.index).Add(color.tint);
    }
    HashBuilder& Add(const ooxml::BorderLine& line) { return Add(line.style).Add(line.color); }
    size_t Value() const { return hash_; }

private:
    size_t hash_ = 0;
};

}  // namespace

size_t CellFormatHash::operator()(const ooxml::CellFormat& format) const {
    HashBuilder hash;
    const ooxml::Font& font = format.font;
    hash.Add(format.numberFormat).Add(font.name).Add(font.size).Add(font.bold).Add(font.italic).Add(font.strike);
    hash.Add(font.underline).Add(font.vertAlign).Add(font.color).Add(font.family).Add(font.scheme);
    hash.Add(format.fill.patternType).Add(format.fill.foreground).Add(format.fill.background);
    const ooxml::Border& border = format.border;
    hash.Add(border.left).Add(border.right).Add(border.top).Add(border.bottom).Add(border.diagonal);
    hash.Add(border.diagonalUp).Add(border.diagonalDown);
    const ooxml::Alignment& alignment = format.alignment;
    hash.Add(alignment.horizontal).Add(alignment.vertical).Add(alignment.wrapText).Add(alignment.shrinkToFit);
    hash.Add(alignment.indent).Add(alignment.textRotation);
    hash.Add(format.quotePrefix).Add(format.locked).Add(format.hidden);
    return hash.Value();
}

FormatTable::FormatTable() {
    Intern(ooxml::CellFormat{});
}

uint32_t FormatTable::Intern(const ooxml::CellFormat& format) {
    auto [it, inserted] = ids_.try_emplace(format, static_cast<uint32_t>(formats_.size()));
    if (inserted) {
        formats_.push_back(format);
    }
    return it->second;
}

}  // namespace excel::embedded
