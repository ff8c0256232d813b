#pragma once

#include "excel/embedded/objects/charts/chart_handle.hpp"

#include <excel/axis_title.hpp>
#include <excel/chart_title.hpp>

#include <functional>
#include <string>

namespace excel::embedded {

// A title of a chart: the chart's own (ChartTitle) or an axis' (AxisTitle), found anew on every use.
// Its text is rich: Characters format runs of it over the title's font.
template <class Interface>
class TitleView final : public Interface {
public:
    using Find = std::function<ChartTitleModel&(ChartModel&)>;
    // Where the title is now in the chart's layout.
    using Place = std::function<ShapeBounds(ChartModel&, double width, double height)>;
    using Remove = std::function<void(ChartModel&)>;

    TitleView(ChartHandle chart, Find find, Place place, Remove remove)
        : chart_(std::move(chart)), find_(std::move(find)), place_(std::move(place)), remove_(std::move(remove)) {}

    std::string Text() override;
    void SetText(const std::string& text) override;
    std::string Caption() override;
    void SetCaption(const std::string& text) override;
    std::shared_ptr<excel::Characters> Characters(int32_t start, int32_t length) override;
    std::shared_ptr<excel::Font> Font() override;
    bool AutoScaleFont() override;
    void SetAutoScaleFont(bool automatic) override;
    int32_t Orientation() override;
    void SetOrientation(int32_t orientation) override;
    double Left() override;
    void SetLeft(double points) override;
    double Top() override;
    void SetTop(double points) override;
    double Width() override;
    double Height() override;
    std::shared_ptr<excel::Border> Border() override;
    std::shared_ptr<excel::Interior> Interior() override;
    void Delete() override;

    const void* Identity() const override { return &find_(chart_.Chart()); }

private:
    ChartTitleModel& title() const { return find_(chart_.Chart()); }
    ShapeBounds bounds() const;
    void edit(const std::function<void(ChartTitleModel&)>& change);

    ChartHandle chart_;
    Find find_;
    Place place_;
    Remove remove_;
};

using ChartTitleView = TitleView<excel::ChartTitle>;
using AxisTitleView = TitleView<excel::AxisTitle>;

}  // namespace excel::embedded
