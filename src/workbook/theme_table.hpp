#pragma once

#include <array>
#include <cstdint>

namespace vos {

// The theme colour and tint each themed part of a report takes, indexed by VosThemePropertyType.
// Colours are Excel theme-colour indexes (1 dark 1, 2 light 1, 3 dark 2, 4 light 2, 5 accent 1,
// 6 accent 2); tints darken for negative values. A value outside the enumeration reads the
// VosTableBorders entry.
class ThemeTable {
public:
    ThemeTable();

    // With objectThemeColor, the index for drawing objects, whose numbering swaps 1 with 2 and 3
    // with 4 against the cells' numbering.
    int32_t ColorFor(int32_t propertyType, bool objectThemeColor) const;
    float TintAndShadeFor(int32_t propertyType) const;

private:
    struct Entry {
        int32_t color;
        float tintAndShade;
    };
    const Entry& EntryFor(int32_t propertyType) const;

    std::array<Entry, 8> entries_;
};

}  // namespace vos
