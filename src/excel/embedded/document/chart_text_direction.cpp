#include "excel/embedded/document/chart_text_direction.hpp"

#include <excel/chart_constants.hpp>
#include <excel/constants.hpp>

#include <algorithm>

namespace excel::embedded {

namespace {

constexpr int32_t RotationPerDegree = 60000;
constexpr int32_t QuarterTurn = 90 * RotationPerDegree;
// Letters stacked one under another: Excel's vertical text.
constexpr std::string_view Stacked = "wordArtVert";
constexpr std::string_view Horizontal = "horz";

}  // namespace

ChartTextDirection DirectionOfOrientation(int32_t orientation, int32_t unwritten) {
    if (orientation == unwritten) {
        return {};
    }
    switch (orientation) {
        case xlTickLabelOrientationAutomatic:
            return {};
        case xlUpward:
            return {-QuarterTurn, std::string(Horizontal)};
        case xlDownward:
            return {QuarterTurn, std::string(Horizontal)};
        case xlHorizontal:
            return {0, std::string(Horizontal)};
        case xlVertical:
            return {0, std::string(Stacked)};
        default:
            return {-orientation * RotationPerDegree, std::string(Horizontal)};
    }
}

int32_t OrientationOfDirection(const std::optional<int32_t>& rotation, std::string_view vertical, int32_t unwritten) {
    if (vertical == Stacked) {
        return xlVertical;
    }
    // Text turned a quarter clockwise, or a quarter against, whatever the body's rotation.
    if (vertical == "vert") {
        return xlDownward;
    }
    if (vertical == "vert270") {
        return xlUpward;
    }
    if (!rotation) {
        return unwritten;
    }
    if (*rotation == -QuarterTurn) {
        return xlUpward;
    }
    if (*rotation == QuarterTurn) {
        return xlDownward;
    }
    if (*rotation == 0) {
        return xlHorizontal;
    }
    return std::clamp(-*rotation / RotationPerDegree, -90, 90);
}

}  // namespace excel::embedded
