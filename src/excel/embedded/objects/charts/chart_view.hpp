#pragma once

#include "excel/embedded/objects/charts/chart_handle.hpp"

#include <excel/chart.hpp>

namespace excel::embedded {

class ChartView final : public excel::Chart {
public:
    explicit ChartView(ChartHandle chart) : chart_(std::move(chart)) {}

    std::shared_ptr<excel::ChartObject> Parent() override;
    int32_t ChartType() override;
    void SetChartType(int32_t type) override;
    std::shared_ptr<excel::ChartArea> ChartArea() override;
    std::shared_ptr<excel::PlotArea> PlotArea() override;
    std::shared_ptr<excel::SeriesCollection> SeriesCollection() override;
    std::shared_ptr<excel::Series> SeriesCollection(const Variant& index) override;
    std::shared_ptr<excel::ChartGroups> ChartGroups() override;
    std::shared_ptr<excel::ChartGroup> ChartGroups(const Variant& index) override;
    std::shared_ptr<excel::Axes> Axes() override;
    std::shared_ptr<excel::Axis> Axes(int32_t type, int32_t group) override;
    bool HasAxis(int32_t type, int32_t group) override;
    void SetHasAxis(int32_t type, int32_t group, bool has) override;
    bool HasTitle() override;
    void SetHasTitle(bool has) override;
    std::shared_ptr<excel::ChartTitle> ChartTitle() override;
    bool HasLegend() override;
    void SetHasLegend(bool has) override;
    std::shared_ptr<excel::Legend> Legend() override;
    std::shared_ptr<excel::Shapes> Shapes() override;

    const void* Identity() const override { return &chart_.Chart(); }

private:
    ChartHandle chart_;
};

}  // namespace excel::embedded
