#pragma once

#include "excel/embedded/model/charts/chart_format.hpp"

#include <excel/constants.hpp>

#include <cstdint>
#include <memory>

namespace ooxml {
struct ChartLegend;
}

namespace excel::embedded {

struct LegendModel {
    int32_t position = xlLegendPositionRight;
    bool includeInLayout = true;
    ChartTextFormat text;
    ChartElementFormat format;
    std::shared_ptr<const ooxml::ChartLegend> opened;
};

}  // namespace excel::embedded
