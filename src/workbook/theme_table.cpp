#include "workbook/theme_table.hpp"

#include <vos/theme_property_type.hpp>

#include <cstddef>

namespace vos {

ThemeTable::ThemeTable()
    : entries_{{
          {1, 0.0f},     // VosReportHeader
          {3, -0.25f},   // VosTableTitle
          {1, 0.0f},     // VosTableTitleFont
          {3, 0.0f},     // VosTableHeader
          {1, -0.25f},   // VosTableBorders
          {2, 0.0f},     // VosGeneralFont
          {5, -0.25f},   // VosCommentFont
          {6, -0.25f},   // VosSpecialFont
      }} {}

const ThemeTable::Entry& ThemeTable::EntryFor(int32_t propertyType) const {
    const bool known = propertyType >= VosReportHeader && propertyType <= VosSpecialFont;
    return entries_[static_cast<size_t>((known ? propertyType : VosTableBorders) - 1)];
}

int32_t ThemeTable::ColorFor(int32_t propertyType, bool objectThemeColor) const {
    const int32_t color = EntryFor(propertyType).color;
    if (!objectThemeColor)
        return color;
    switch (color) {
        case 1:
            return 2;
        case 2:
            return 1;
        case 3:
            return 4;
        case 4:
            return 3;
        default:
            return color;
    }
}

float ThemeTable::TintAndShadeFor(int32_t propertyType) const {
    return EntryFor(propertyType).tintAndShade;
}

}  // namespace vos
