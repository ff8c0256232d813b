#include "excel/embedded/model/charts/chart_model.hpp"

#include "excel/embedded/engine_errors.hpp"

#include <algorithm>

namespace excel::embedded {

namespace {

ChartTypeTraits TraitsOrRefused(int32_t type) {
    const auto traits = TraitsOfChartType(type);
    if (!traits) {
        ThrowRefused("Unable to set the ChartType property of the Chart class");
    }
    return *traits;
}

void ApplyGroupTraits(ChartGroupModel& group, const ChartTypeTraits& traits) {
    group.type = traits.type;
    group.kind = traits.kind;
    group.horizontal = traits.horizontal;
    group.grouping = traits.grouping;
    // Stacked bars lie on each other: Excel overlaps them fully.
    if (traits.kind == ChartGroupKind::Bar) {
        group.overlap = traits.grouping == ChartGrouping::Standard ? 0 : 100;
    }
}

bool ShowsMarkers(const SeriesModel& series) {
    return series.marker.style != xlMarkerStyleNone;
}
bool ShowsLine(const SeriesModel& series) {
    return series.format.line.kind != ChartLine::Kind::None;
}

}  // namespace

void ApplySeriesLook(SeriesModel& series, const ChartTypeTraits& traits) {
    const bool pointed = traits.kind == ChartGroupKind::Line || traits.kind == ChartGroupKind::Scatter;
    series.marker.style = pointed && !traits.markers ? xlMarkerStyleNone : xlMarkerStyleAutomatic;
    if (traits.kind == ChartGroupKind::Scatter && !traits.lines) {
        series.format.line.kind = ChartLine::Kind::None;
    } else if (series.format.line.kind == ChartLine::Kind::None && pointed) {
        series.format.line.kind = ChartLine::Kind::Automatic;
    }
    series.smooth = traits.smooth;
}

ChartModel::ChartModel(int32_t type) {
    const ChartTypeTraits traits = TraitsOrRefused(type);
    auto group = std::make_shared<ChartGroupModel>();
    ApplyGroupTraits(*group, traits);
    groups_.push_back(std::move(group));
    addAxes(xlPrimary);
    Axis(xlValue, xlPrimary)->majorGridlines = true;
    legend_ = std::make_shared<LegendModel>();
}

ChartModel::ChartModel(OpenedChart) {}

std::size_t ChartModel::SlotOf(int32_t type, int32_t group) {
    return (group == xlSecondary ? 2u : 0u) + (type == xlValue ? 1u : 0u);
}

void ChartModel::addAxes(int32_t group) {
    for (const int32_t type : {xlCategory, xlValue}) {
        AxisSlot& slot = axes_[SlotOf(type, group)];
        slot.axis = std::make_shared<AxisModel>();
        slot.axis->type = type;
        slot.axis->group = group;
        slot.shown = true;
    }
    if (group == xlSecondary) {
        // The secondary value axis stands at the right, where it crosses its hidden category axis.
        axes_[SlotOf(xlCategory, xlSecondary)].shown = false;
        axes_[SlotOf(xlCategory, xlSecondary)].axis->crosses = xlAxisCrossesMaximum;
    }
}

int32_t ChartModel::Type() const {
    const ChartGroupModel& group = *groups_.front();
    return group.series.empty() ? group.type : TypeOfSeries(*group.series.front());
}

int32_t ChartModel::TypeOfSeries(const SeriesModel& series) const {
    const ChartGroupModel* group = GroupOf(series);
    const ChartGroupModel& shown = group != nullptr ? *group : *groups_.front();
    return ChartTypeOf(shown.kind, shown.horizontal, shown.grouping, ShowsMarkers(series), ShowsLine(series),
                       series.smooth);
}

void ChartModel::SetType(int32_t type) {
    const ChartTypeTraits traits = TraitsOrRefused(type);
    for (const auto& group : groups_) {
        ApplyGroupTraits(*group, traits);
        for (const auto& series : group->series) {
            ApplySeriesLook(*series, traits);
        }
    }
}

std::vector<std::shared_ptr<SeriesModel>> ChartModel::Series() const {
    std::vector<std::shared_ptr<SeriesModel>> all;
    for (const auto& group : groups_) {
        all.insert(all.end(), group->series.begin(), group->series.end());
    }
    return all;
}

std::shared_ptr<SeriesModel> ChartModel::NewSeries() {
    auto series = std::make_shared<SeriesModel>();
    series->index = nextSeriesIndex_++;
    ChartGroupModel& group = *groups_.front();
    ApplySeriesLook(*series, *TraitsOfChartType(group.type));
    group.series.push_back(series);
    return series;
}

ChartGroupModel* ChartModel::GroupOf(const SeriesModel& series) const {
    for (const auto& group : groups_) {
        for (const auto& member : group->series) {
            if (member.get() == &series) {
                return group.get();
            }
        }
    }
    return nullptr;
}

void ChartModel::RemoveSeries(const SeriesModel& series) {
    for (const auto& group : groups_) {
        std::erase_if(group->series, [&](const auto& member) { return member.get() == &series; });
    }
    dropEmptyGroups();
}

std::shared_ptr<ChartGroupModel> ChartModel::groupOn(int32_t axisGroup, const ChartGroupModel& like) {
    for (const auto& group : groups_) {
        if (group->axisGroup == axisGroup && group->kind == like.kind) {
            return group;
        }
    }
    auto group = std::make_shared<ChartGroupModel>(like);
    group->axisGroup = axisGroup;
    group->series.clear();
    group->opened = nullptr;
    const bool primary = axisGroup == xlPrimary;
    groups_.insert(primary ? groups_.begin() : groups_.end(), group);
    return group;
}

void ChartModel::MoveSeries(const SeriesModel& series, int32_t axisGroup) {
    ChartGroupModel* from = GroupOf(series);
    if (from == nullptr || from->axisGroup == axisGroup) {
        return;
    }
    if (axisGroup == xlSecondary && !UsesAxisGroup(xlSecondary)) {
        addAxes(xlSecondary);
    }
    const auto to = groupOn(axisGroup, *from);
    const auto member = std::find_if(from->series.begin(), from->series.end(),
                                     [&](const auto& candidate) { return candidate.get() == &series; });
    to->series.push_back(*member);
    from->series.erase(member);
    dropEmptyGroups();
}

void ChartModel::dropEmptyGroups() {
    // A chart keeps one group of the primary axes even without series; the secondary axes go with
    // their last series.
    std::erase_if(groups_, [&](const auto& group) {
        return group->series.empty() && (group->axisGroup == xlSecondary || groups_.size() > 1);
    });
    if (groups_.front()->axisGroup == xlSecondary) {
        // The last primary series went: the secondary group and its axes become the primary ones.
        groups_.front()->axisGroup = xlPrimary;
        axes_[0] = axes_[2];
        axes_[1] = axes_[3];
        for (const std::size_t slot : {0u, 1u}) {
            axes_[slot].axis->group = xlPrimary;
        }
        axes_[0].shown = true;
        axes_[0].axis->crosses = xlAxisCrossesAutomatic;  // the value axis back at the left
    }
    if (!UsesAxisGroup(xlSecondary)) {
        axes_[2] = AxisSlot{};
        axes_[3] = AxisSlot{};
    }
}

bool ChartModel::UsesAxisGroup(int32_t group) const {
    return std::any_of(groups_.begin(), groups_.end(), [group](const auto& g) { return g->axisGroup == group; });
}

const ChartGroupModel& ChartModel::GroupOnAxes(int32_t axisGroup) const {
    for (const auto& group : groups_) {
        if (group->axisGroup == axisGroup) {
            return *group;
        }
    }
    return *groups_.front();
}

std::shared_ptr<AxisModel> ChartModel::Axis(int32_t type, int32_t group) const {
    if ((type != xlCategory && type != xlValue) || (group != xlPrimary && group != xlSecondary)) {
        return nullptr;
    }
    return axes_[SlotOf(type, group)].axis;
}

bool ChartModel::HasAxis(int32_t type, int32_t group) const {
    const auto axis = Axis(type, group);
    return axis != nullptr && axes_[SlotOf(type, group)].shown;
}

bool ChartModel::AxisShown(const AxisModel& axis) const {
    return HasAxis(axis.type, axis.group) && Axis(axis.type, axis.group).get() == &axis;
}

void ChartModel::SetHasAxis(int32_t type, int32_t group, bool has) {
    if (Axis(type, group) == nullptr) {
        ThrowRefused("Unable to set the HasAxis property of the Chart class");
    }
    axes_[SlotOf(type, group)].shown = has;
}

std::shared_ptr<AxisModel> ChartModel::CrossingAxis(const AxisModel& axis) const {
    return Axis(axis.type == xlCategory ? xlValue : xlCategory, axis.group);
}

void ChartModel::SetHasTitle(bool has) {
    automaticTitleOff = !has;
    if (!has) {
        title_ = nullptr;
    } else if (title_ == nullptr) {
        title_ = std::make_shared<ChartTitleModel>();
        title_->font = DefaultChartFont();
        title_->font.size = 18.0;
        title_->font.bold = true;
    }
}

void ChartModel::SetHasLegend(bool has) {
    if (!has) {
        legend_ = nullptr;
    } else if (legend_ == nullptr) {
        legend_ = std::make_shared<LegendModel>();
    }
}

void ChartModel::RewriteReferences(const std::function<std::string(std::string_view)>& rewrite) {
    for (const auto& series : Series()) {
        for (ChartData* data : {&series->nameReference, &series->categories, &series->values}) {
            if (data->kind == ChartData::Kind::Reference) {
                data->reference = rewrite(data->reference);
            }
        }
    }
}

void ChartModel::AddOpenedGroup(std::shared_ptr<ChartGroupModel> group) {
    for (const auto& series : group->series) {
        nextSeriesIndex_ = std::max(nextSeriesIndex_, series->index + 1);
    }
    groups_.push_back(std::move(group));
}

void ChartModel::SetOpenedAxis(std::shared_ptr<AxisModel> axis, bool shown) {
    AxisSlot& slot = axes_[SlotOf(axis->type, axis->group)];
    slot.axis = std::move(axis);
    slot.shown = shown;
}

}  // namespace excel::embedded
