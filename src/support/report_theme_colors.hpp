#pragma once

#include <cstdint>

namespace vos {

// The colours a report workbook gives the elements of its reports: whether they follow the
// workbook's theme, and each element's theme colour and tint. The report workbook answers; tables,
// charts and the range themes ask, without depending on the workbook itself.
class ReportThemeColors {
public:
    virtual bool UseThemes() const = 0;
    // The theme colour of a VosThemePropertyType, as xlThemeColor for cells or, with
    // objectThemeColor, as msoThemeColorIndex for drawing objects.
    virtual int32_t ThemeColorFor(int32_t propertyType, bool objectThemeColor) const = 0;
    virtual float ThemeTintAndShadeFor(int32_t propertyType) const = 0;

protected:
    ~ReportThemeColors() = default;
};

}  // namespace vos
