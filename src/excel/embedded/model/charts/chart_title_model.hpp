#pragma once

#include "excel/embedded/model/charts/chart_format.hpp"
#include "excel/embedded/text/rich_text.hpp"

#include <excel/constants.hpp>

#include <memory>
#include <optional>

namespace ooxml {
struct ChartTitle;
}

namespace excel::embedded {

// The title of a chart or an axis: its text in runs of their own fonts over the title's font.
// An empty text is Excel's automatic title (a chart's single series' name).
struct ChartTitleModel {
    RichText text;
    FontFormat font;
    bool autoScaleFont = true;
    int32_t orientation = xlHorizontal;  // an XlOrientation, or degrees -90..90
    ChartElementFormat format;
    std::optional<double> left;  // points from the chart area's corner, once moved
    std::optional<double> top;
    bool textFromFile = false;  // the opened file's own rich text still holds
    std::shared_ptr<const ooxml::ChartTitle> opened;
};

}  // namespace excel::embedded
