#pragma once

#include "excel/embedded/objects/charts/chart_handle.hpp"

#include <excel/tick_labels.hpp>

namespace excel::embedded {

// The labels of an axis while the chart shows it.
class TickLabelsView final : public excel::TickLabels {
public:
    TickLabelsView(ChartHandle chart, int32_t type, int32_t group)
        : chart_(std::move(chart)), type_(type), group_(group) {}

    bool AutoScaleFont() override;
    void SetAutoScaleFont(bool automatic) override;
    std::shared_ptr<excel::Font> Font() override;
    std::string NumberFormat() override;
    void SetNumberFormat(const std::string& format) override;
    std::string NumberFormatLocal() override;
    void SetNumberFormatLocal(const std::string& format) override;
    bool NumberFormatLinked() override;
    void SetNumberFormatLinked(bool linked) override;
    int32_t Orientation() override;
    void SetOrientation(int32_t orientation) override;

private:
    AxisModel& axis() const;

    ChartHandle chart_;
    int32_t type_;
    int32_t group_;
};

// The axis of the type in the group while the chart shows it; Object required otherwise.
AxisModel& ShownAxis(ChartModel& chart, int32_t type, int32_t group);

}  // namespace excel::embedded
