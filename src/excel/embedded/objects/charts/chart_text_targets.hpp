#pragma once

#include "excel/embedded/objects/charts/chart_handle.hpp"
#include "excel/embedded/objects/range/font_view.hpp"
#include "excel/embedded/objects/rich_text_source.hpp"

#include <functional>

namespace excel::embedded {

// The text of a chart's or an axis' title as Characters see it, found anew on every use.
class TitleRichText final : public RichTextSource {
public:
    TitleRichText(ChartHandle chart, std::function<ChartTitleModel&(ChartModel&)> find)
        : chart_(std::move(chart)), find_(std::move(find)) {}

    RichText Text() override;
    FontFormat BaseFont() override;
    void SetText(const RichText& text) override;
    void EditFonts(size_t start, size_t count, const std::function<void(FontFormat&)>& edit) override;
    const WorkbookColors& Colors() override;

private:
    ChartTitleModel& title() const { return find_(chart_.Chart()); }

    ChartHandle chart_;
    std::function<ChartTitleModel&(ChartModel&)> find_;
};

// The font of a chart element's text (tick labels, a legend, the chart area): the chart's
// automatic font until one is set.
class ChartTextFontTarget final : public FontTarget {
public:
    ChartTextFontTarget(ChartHandle chart, std::function<ChartTextFormat&(ChartModel&)> find)
        : chart_(std::move(chart)), find_(std::move(find)) {}

    std::vector<FontFormat> Fonts() override;
    void EditFonts(const std::function<void(FontFormat&)>& edit) override;
    const WorkbookColors& Colors() override { return chart_.Colors(); }

private:
    ChartHandle chart_;
    std::function<ChartTextFormat&(ChartModel&)> find_;
};

}  // namespace excel::embedded
