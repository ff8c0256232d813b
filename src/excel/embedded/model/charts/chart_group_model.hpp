#pragma once

#include "excel/embedded/model/charts/chart_type.hpp"
#include "excel/embedded/model/charts/series_model.hpp"

#include <excel/constants.hpp>

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace ooxml {
struct ChartGroup;
}

namespace excel::embedded {

// Series drawn one way on one pair of axes.
struct ChartGroupModel {
    int32_t type = xlColumnClustered;  // the XlChartType last given: the look of its new and cleared series
    ChartGroupKind kind = ChartGroupKind::Bar;
    bool horizontal = false;
    ChartGrouping grouping = ChartGrouping::Standard;
    int32_t axisGroup = xlPrimary;
    bool varyColors = false;
    int32_t gapWidth = 150;
    int32_t overlap = 0;
    bool showMarkers = true;  // a line group draws its series' markers
    std::vector<std::shared_ptr<SeriesModel>> series;
    std::shared_ptr<const ooxml::ChartGroup> opened;
};

}  // namespace excel::embedded
