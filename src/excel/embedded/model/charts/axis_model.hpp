#pragma once

#include "excel/embedded/model/charts/chart_format.hpp"
#include "excel/embedded/model/charts/chart_title_model.hpp"

#include <excel/constants.hpp>

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

namespace ooxml {
struct ChartAxis;
}

namespace excel::embedded {

// An axis: a category (or X) axis or a value axis of the primary or secondary group. Crosses
// and crossesAt say where the other axis of the group crosses this one.
struct AxisModel {
    int32_t type = xlValue;
    int32_t group = xlPrimary;
    std::optional<ChartTitleModel> title;
    bool majorGridlines = false;
    bool minorGridlines = false;
    ChartElementFormat majorGridlineFormat;
    ChartElementFormat minorGridlineFormat;
    int32_t majorTickMark = xlTickMarkOutside;
    int32_t minorTickMark = xlTickMarkNone;
    int32_t tickLabelPosition = xlTickLabelPositionNextToAxis;
    std::optional<double> minimum;  // none: automatic
    std::optional<double> maximum;
    std::optional<double> majorUnit;
    std::optional<double> minorUnit;
    int32_t scaleType = xlScaleLinear;
    double logBase = 10.0;
    bool reversed = false;
    int32_t crosses = xlAxisCrossesAutomatic;
    double crossesAt = 0.0;
    std::string numberFormat = "General";
    bool numberFormatLinked = true;
    ChartTextFormat tickLabels;
    ChartElementFormat format;  // the axis line
    std::shared_ptr<const ooxml::ChartAxis> opened;
};

}  // namespace excel::embedded
