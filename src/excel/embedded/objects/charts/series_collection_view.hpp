#pragma once

#include "excel/embedded/objects/charts/chart_handle.hpp"

#include <excel/series_collection.hpp>

namespace excel::embedded {

// The series of a chart, or of one of its chart groups, in plotting order.
class SeriesCollectionView final : public excel::SeriesCollection {
public:
    // group: the chart group whose series these are; null for the whole chart's.
    SeriesCollectionView(ChartHandle chart, std::shared_ptr<ChartGroupModel> group)
        : chart_(std::move(chart)), group_(std::move(group)) {}

    int32_t Count() override;
    std::shared_ptr<excel::Series> Item(const Variant& index) override;
    std::shared_ptr<excel::Series> NewSeries() override;

private:
    std::vector<std::shared_ptr<SeriesModel>> series() const;

    ChartHandle chart_;
    std::shared_ptr<ChartGroupModel> group_;
};

}  // namespace excel::embedded
