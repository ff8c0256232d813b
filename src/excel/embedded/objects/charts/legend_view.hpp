#pragma once

#include "excel/embedded/objects/charts/chart_handle.hpp"

#include <excel/legend.hpp>

namespace excel::embedded {

// The legend of a chart while the chart has one.
class LegendView final : public excel::Legend {
public:
    explicit LegendView(ChartHandle chart) : chart_(std::move(chart)) {}

    int32_t Position() override;
    void SetPosition(int32_t position) override;
    std::shared_ptr<excel::Font> Font() override;
    bool AutoScaleFont() override;
    void SetAutoScaleFont(bool automatic) override;
    std::shared_ptr<excel::Border> Border() override;
    std::shared_ptr<excel::Interior> Interior() override;
    bool IncludeInLayout() override;
    void SetIncludeInLayout(bool include) override;
    double Left() override;
    double Top() override;
    double Width() override;
    double Height() override;
    void Delete() override;

    const void* Identity() const override { return &legend(); }

private:
    LegendModel& legend() const;
    ShapeBounds bounds() const;

    ChartHandle chart_;
};

}  // namespace excel::embedded
