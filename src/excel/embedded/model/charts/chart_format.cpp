#include "excel/embedded/model/charts/chart_format.hpp"

namespace excel::embedded {

FontFormat DefaultChartFont() {
    FontFormat font;
    font.size = 10.0;
    font.color = FormatColor{FormatColor::Kind::Automatic, 0, 0, 0.0};
    return font;
}

}  // namespace excel::embedded
