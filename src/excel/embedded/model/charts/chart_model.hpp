#pragma once

#include "excel/embedded/model/charts/axis_model.hpp"
#include "excel/embedded/model/charts/chart_group_model.hpp"
#include "excel/embedded/model/charts/legend_model.hpp"
#include "excel/embedded/model/shapes/shape_list.hpp"

#include <array>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace ooxml {
struct ChartDocument;
}

namespace excel::embedded {

// A chart with Excel's rules: its series in chart groups (those of the primary axes first), the
// axes of each axis group in use (hidden ones keep their format, as a file keeps a deleted axis),
// an optional title and legend, the chart and plot areas' formats, and text boxes of its own.
class ChartModel {
public:
    // Excel's new chart of the type, without series: primary axes with major gridlines on the value
    // axis, a legend at the right, no title. Refused for a type the engine does not draw.
    explicit ChartModel(int32_t type);
    // An opened chart, empty until its loader adds the file's groups (one at least), the axes they
    // are drawn on, its title and its legend.
    struct OpenedChart {};
    explicit ChartModel(OpenedChart);

    // The type the first group shows with its first series' look (without series: the type given).
    int32_t Type() const;
    // Every series takes the type: its group draws that way and its look becomes the type's.
    void SetType(int32_t type);

    const std::vector<std::shared_ptr<ChartGroupModel>>& Groups() const { return groups_; }
    // The series in plotting order: group by group.
    std::vector<std::shared_ptr<SeriesModel>> Series() const;
    // A new series at the end of the first group of the primary axes, in the look of the chart's type.
    std::shared_ptr<SeriesModel> NewSeries();
    void RemoveSeries(const SeriesModel& series);
    // The group that holds the series; null once it is removed.
    ChartGroupModel* GroupOf(const SeriesModel& series) const;
    // Moves the series to the same kind of group on the other axes, which appear with it.
    void MoveSeries(const SeriesModel& series, int32_t axisGroup);
    int32_t TypeOfSeries(const SeriesModel& series) const;

    // The axis of the type in the group while the group is in use; hidden or not.
    std::shared_ptr<AxisModel> Axis(int32_t type, int32_t group) const;
    bool HasAxis(int32_t type, int32_t group) const;
    // Shows or hides the axis; refused for a group no series is on.
    void SetHasAxis(int32_t type, int32_t group, bool has);
    bool AxisShown(const AxisModel& axis) const;
    // The other axis of the axis' group: the one that crosses it.
    std::shared_ptr<AxisModel> CrossingAxis(const AxisModel& axis) const;
    bool UsesAxisGroup(int32_t group) const;
    // The first group drawn on the axis group's axes (the first group when none is): how its
    // axes run and what they measure.
    const ChartGroupModel& GroupOnAxes(int32_t axisGroup) const;

    bool HasTitle() const { return title_ != nullptr; }
    void SetHasTitle(bool has);
    const std::shared_ptr<ChartTitleModel>& Title() const { return title_; }
    bool HasLegend() const { return legend_ != nullptr; }
    void SetHasLegend(bool has);
    const std::shared_ptr<LegendModel>& Legend() const { return legend_; }

    ChartElementFormat chartArea;
    ChartTextFormat chartText;
    ChartElementFormat plotArea;
    // The plot area (axis labels included) once it was placed, in points from the chart area's
    // corner; none: where Excel's automatic layout puts it.
    std::optional<ShapeBounds> plotAreaBounds;
    int32_t style = 2;
    bool roundedCorners = false;
    // Without a title of its own: whether the automatic title (a single series' name) is off too,
    // as a new chart's and one whose title was removed are.
    bool automaticTitleOff = true;
    ShapeList shapes;  // text boxes placed from the chart area's corner
    // The chart as the opened file had it: what the model does not hold is written back from it.
    std::shared_ptr<const ooxml::ChartDocument> opened;

    // Rewrites the references of every series' name, categories and values.
    void RewriteReferences(const std::function<std::string(std::string_view)>& rewrite);

    // For loading an opened chart: its groups and axes as the file gave them.
    void AddOpenedGroup(std::shared_ptr<ChartGroupModel> group);
    void SetOpenedAxis(std::shared_ptr<AxisModel> axis, bool shown);
    void SetOpenedTitle(std::shared_ptr<ChartTitleModel> title) { title_ = std::move(title); }
    void SetOpenedLegend(std::shared_ptr<LegendModel> legend) { legend_ = std::move(legend); }
    uint32_t NextSeriesIndex() const { return nextSeriesIndex_; }

    // An axis' place among the four: category and value of the primary group, then of the secondary.
    static std::size_t SlotOf(int32_t type, int32_t group);

private:
    struct AxisSlot {
        std::shared_ptr<AxisModel> axis;
        bool shown = true;
    };
    std::shared_ptr<ChartGroupModel> groupOn(int32_t axisGroup, const ChartGroupModel& like);
    void addAxes(int32_t group);
    void dropEmptyGroups();

    std::vector<std::shared_ptr<ChartGroupModel>> groups_;
    std::array<AxisSlot, 4> axes_;  // category and value of the primary group, then of the secondary
    std::shared_ptr<ChartTitleModel> title_;
    std::shared_ptr<LegendModel> legend_;
    uint32_t nextSeriesIndex_ = 0;
};

// Applies a type's series look: markers, line and smoothing as Excel gives a new series of it.
void ApplySeriesLook(SeriesModel& series, const ChartTypeTraits& traits);

}  // namespace excel::embedded
