#pragma once

#include "excel/embedded/objects/charts/chart_handle.hpp"

#include <excel/chart_area.hpp>
#include <excel/plot_area.hpp>

namespace excel::embedded {

// The chart area: the whole chart.
class ChartAreaView final : public excel::ChartArea {
public:
    explicit ChartAreaView(ChartHandle chart) : chart_(std::move(chart)) {}

    double Left() override;
    double Top() override;
    double Width() override;
    double Height() override;
    std::shared_ptr<excel::Border> Border() override;
    std::shared_ptr<excel::Interior> Interior() override;
    std::shared_ptr<excel::Font> Font() override;
    void ClearFormats() override;

    const void* Identity() const override { return &chart_.Chart().chartArea; }

private:
    ChartHandle chart_;
};

// The plot area: placing it by hand fixes it where it is put.
class PlotAreaView final : public excel::PlotArea {
public:
    explicit PlotAreaView(ChartHandle chart) : chart_(std::move(chart)) {}

    double Left() override;
    void SetLeft(double points) override;
    double Top() override;
    void SetTop(double points) override;
    double Width() override;
    void SetWidth(double points) override;
    double Height() override;
    void SetHeight(double points) override;
    double InsideLeft() override;
    double InsideTop() override;
    double InsideWidth() override;
    double InsideHeight() override;
    std::shared_ptr<excel::Border> Border() override;
    std::shared_ptr<excel::Interior> Interior() override;
    void ClearFormats() override;

    const void* Identity() const override { return &chart_.Chart().plotArea; }

private:
    ShapeBounds outer() const;
    ShapeBounds inside() const;
    void place(double ShapeBounds::*member, double points);

    ChartHandle chart_;
};

}  // namespace excel::embedded
