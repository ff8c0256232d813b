#include "excel/embedded/objects/charts/chart_group_view.hpp"

#include "excel/embedded/engine_errors.hpp"
#include "excel/embedded/objects/charts/series_collection_view.hpp"

#include <algorithm>

namespace excel::embedded {

namespace {

constexpr int32_t LargestGap = 500;
constexpr int32_t LargestOverlap = 100;

}  // namespace

ChartGroupModel& ChartGroupView::group() const {
    const auto& groups = chart_.Chart().Groups();
    if (std::find(groups.begin(), groups.end(), group_) == groups.end()) {
        ThrowObjectRequired();
    }
    return *group_;
}

int32_t ChartGroupView::AxisGroup() {
    return group().axisGroup;
}

int32_t ChartGroupView::GapWidth() {
    return group().gapWidth;
}

void ChartGroupView::SetGapWidth(int32_t percent) {
    ChartGroupModel& changed = group();
    if (changed.kind != ChartGroupKind::Bar || percent < 0 || percent > LargestGap) {
        ThrowRefused("Unable to set the GapWidth property of the ChartGroup class");
    }
    changed.gapWidth = percent;
    chart_.Changed();
}

int32_t ChartGroupView::Overlap() {
    return group().overlap;
}

void ChartGroupView::SetOverlap(int32_t percent) {
    ChartGroupModel& changed = group();
    if (changed.kind != ChartGroupKind::Bar || percent < -LargestOverlap || percent > LargestOverlap) {
        ThrowRefused("Unable to set the Overlap property of the ChartGroup class");
    }
    changed.overlap = percent;
    chart_.Changed();
}

std::shared_ptr<excel::SeriesCollection> ChartGroupView::SeriesCollection() {
    group();
    return std::make_shared<SeriesCollectionView>(chart_, group_);
}

int32_t ChartGroupsView::Count() {
    return static_cast<int32_t>(chart_.Chart().Groups().size());
}

std::shared_ptr<excel::ChartGroup> ChartGroupsView::Item(const Variant& index) {
    const auto& groups = chart_.Chart().Groups();
    const int32_t position = index.IsEmpty() ? 0 : index.ToInt();
    if (position < 1 || position > static_cast<int32_t>(groups.size())) {
        ThrowRefused("Unable to get the Item property of the ChartGroups class");
    }
    return std::make_shared<ChartGroupView>(chart_, groups[static_cast<size_t>(position - 1)]);
}

}  // namespace excel::embedded
