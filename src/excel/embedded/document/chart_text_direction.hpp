#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace excel::embedded {

// The direction of a chart text in the chart part's terms: its body's rotation (60,000ths of a
// degree, none when it is not written) and the text's direction (ST_TextVerticalType, "" when it is
// not written). Excel writes both or neither.
struct ChartTextDirection {
    std::optional<int32_t> rotation;
    std::string vertical;
};

// An orientation (an XlTickLabelOrientation, or degrees from -90 to 90) in the part's terms. The
// orientation a text has when its part says nothing (automatic for tick labels, horizontal for
// titles) is written as nothing.
ChartTextDirection DirectionOfOrientation(int32_t orientation, int32_t unwritten);
// The orientation of a text with that rotation and direction; unwritten when the part gives none.
int32_t OrientationOfDirection(const std::optional<int32_t>& rotation, std::string_view vertical, int32_t unwritten);

}  // namespace excel::embedded
