#pragma once

#include "excel/embedded/model/charts/chart_model.hpp"
#include "excel/embedded/model/shapes/shape_handle.hpp"

#include <memory>

namespace excel::embedded {

// What the views of a chart and its parts hold: the chart's frame on its sheet. Using it after the
// chart was deleted, its sheet deleted or its workbook closed answers Object required.
class ChartHandle {
public:
    explicit ChartHandle(ShapeHandle frame) : frame_(std::move(frame)) {}

    ChartModel& Chart() const { return *frame_.Shape().chart; }
    const ShapeHandle& Frame() const { return frame_; }
    WorksheetModel& Sheet() const { return frame_.Sheet(); }
    const WorkbookColors& Colors() const;
    // The chart's size in points.
    double Width() const { return frame_.Bounds().width; }
    double Height() const { return frame_.Bounds().height; }
    // After any change: marks the workbook changed.
    void Changed() const;
    const void* Identity() const { return frame_.Identity(); }

private:
    ShapeHandle frame_;
};

}  // namespace excel::embedded
