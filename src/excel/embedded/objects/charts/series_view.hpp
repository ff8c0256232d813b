#pragma once

#include "excel/embedded/objects/charts/chart_format_target.hpp"

#include <excel/series.hpp>

namespace excel::embedded {

// A series of a chart until it is deleted.
class SeriesView final : public excel::Series {
public:
    SeriesView(ChartHandle chart, std::shared_ptr<SeriesModel> series)
        : chart_(std::move(chart)), series_(std::move(series)) {}

    std::string Name() override;
    void SetName(const std::string& name) override;
    Variant Values() override;
    void SetValues(const Variant& values) override;
    Variant XValues() override;
    void SetXValues(const Variant& values) override;
    std::string Formula() override;
    int32_t PlotOrder() override;
    int32_t AxisGroup() override;
    void SetAxisGroup(int32_t group) override;
    int32_t ChartType() override;

    void ClearFormats() override;
    std::shared_ptr<excel::Interior> Interior() override;
    std::shared_ptr<excel::ChartFillFormat> Fill() override;
    std::shared_ptr<excel::Border> Border() override;

    int32_t MarkerStyle() override;
    void SetMarkerStyle(int32_t style) override;
    int32_t MarkerSize() override;
    void SetMarkerSize(int32_t points) override;
    int32_t MarkerForegroundColor() override;
    void SetMarkerForegroundColor(int32_t rgb) override;
    int32_t MarkerForegroundColorIndex() override;
    void SetMarkerForegroundColorIndex(int32_t index) override;
    int32_t MarkerBackgroundColor() override;
    void SetMarkerBackgroundColor(int32_t rgb) override;
    int32_t MarkerBackgroundColorIndex() override;
    void SetMarkerBackgroundColorIndex(int32_t index) override;

    void Delete() override;

    const void* Identity() const override { return series_.get(); }

private:
    SeriesModel& series() const;
    ChartGroupModel& group() const;
    ChartFormatTarget formatTarget() const;
    // Marker members belong to line and scatter series.
    ChartMarker& marker(const char* property) const;
    void editMarker(const char* property, const std::function<void(ChartMarker&)>& change);

    ChartHandle chart_;
    std::shared_ptr<SeriesModel> series_;
};

// The name a series shows: its own text, its name cell's text, or "Series<n>".
std::string SeriesName(const WorkbookModel& book, const SeriesModel& series);

}  // namespace excel::embedded
