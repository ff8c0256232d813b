#pragma once

#include "excel/embedded/objects/charts/chart_handle.hpp"

#include <excel/chart_group.hpp>
#include <excel/chart_groups.hpp>

namespace excel::embedded {

// A chart group while the chart has it.
class ChartGroupView final : public excel::ChartGroup {
public:
    ChartGroupView(ChartHandle chart, std::shared_ptr<ChartGroupModel> group)
        : chart_(std::move(chart)), group_(std::move(group)) {}

    int32_t AxisGroup() override;
    int32_t GapWidth() override;
    void SetGapWidth(int32_t percent) override;
    int32_t Overlap() override;
    void SetOverlap(int32_t percent) override;
    std::shared_ptr<excel::SeriesCollection> SeriesCollection() override;

    const void* Identity() const override { return group_.get(); }

private:
    ChartGroupModel& group() const;

    ChartHandle chart_;
    std::shared_ptr<ChartGroupModel> group_;
};

class ChartGroupsView final : public excel::ChartGroups {
public:
    explicit ChartGroupsView(ChartHandle chart) : chart_(std::move(chart)) {}

    int32_t Count() override;
    std::shared_ptr<excel::ChartGroup> Item(const Variant& index) override;

private:
    ChartHandle chart_;
};

}  // namespace excel::embedded
