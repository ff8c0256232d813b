#include "chart/report_chart.hpp"

#include "support/ignoring_excel_errors.hpp"
#include "support/library_error.hpp"
#include "support/trim_blanks.hpp"

#include <excel/axis.hpp>
#include <excel/axis_title.hpp>
#include <excel/border.hpp>
#include <excel/characters.hpp>
#include <excel/chart.hpp>
#include <excel/chart_constants.hpp>
#include <excel/chart_title.hpp>
#include <excel/constants.hpp>
#include <excel/font.hpp>
#include <excel/legend.hpp>
#include <excel/plot_area.hpp>
#include <excel/tick_labels.hpp>

namespace vos {

namespace {

constexpr double ChineseTitleSize = 14.0;
constexpr double TitleSize = 12.0;
constexpr double ChineseSubTitleSize = 10.0;
constexpr double SubTitleSize = 8.0;
constexpr double ChineseLegendSize = 10.0;
constexpr double LegendSize = 8.0;
constexpr int32_t LegendFrameColorIndex = 15;  // grey 25%

// The title ends in this space: the character a subtitle replaces with its own line.
constexpr const char* TitleEnd = " ";

}  // namespace

void ReportChart::ResetPlotArea() {
    RequireDataSeries();
    chart_->PlotArea()->ClearFormats();
    // Each step may be refused, as on a chart type without that axis; the others still run.
    for (const int32_t kind : {excel::xlCategory, excel::xlValue}) {
        const auto axis = [&] { return chart_->Axes(kind, excel::xlPrimary); };
        IgnoringExcelErrors([&] { axis()->SetHasMajorGridlines(false); });
        IgnoringExcelErrors([&] { axis()->SetHasMinorGridlines(false); });
        IgnoringExcelErrors([&] { axis()->AxisTitle()->SetAutoScaleFont(false); });
        IgnoringExcelErrors([&] { axis()->TickLabels()->SetAutoScaleFont(false); });
        IgnoringExcelErrors([&] { chart_->SetHasAxis(kind, excel::xlPrimary, false); });
    }
    IgnoringExcelErrors([&] { chart_->SetHasLegend(false); });
    IgnoringExcelErrors([&] { chart_->SetHasTitle(false); });
}

std::shared_ptr<excel::ChartTitle> ReportChart::AddTitle(const std::string& titleText) {
    RequireDataSeries();
    const std::string text = TrimBlanks(titleText);
    if (text.empty())
        RaiseLibraryError(error_code::EmptyArgument, "titleText");
    IgnoringExcelErrors([&] { chart_->ChartTitle()->Delete(); });
    chart_->SetHasTitle(true);
    auto title = chart_->ChartTitle();
    title->SetAutoScaleFont(false);
    title->Characters()->SetText(text + TitleEnd);
    const auto font = title->Font();
    font->SetSize(FontSize(ChineseTitleSize, TitleSize));
    font->SetBold(true);
    return title;
}

std::shared_ptr<excel::ChartTitle> ReportChart::AddSubTitle(const std::string& subTitleText) {
    RequireDataSeries();
    if (!chart_->HasTitle())
        RaiseLibraryError(error_code::NotAllowedNow, "The chart must have a ChartTitle to call this method.");
    const std::string text = TrimBlanks(subTitleText);
    if (text.empty())
        RaiseLibraryError(error_code::EmptyArgument, "titleText");
    auto title = chart_->ChartTitle();
    if (title->Characters()->Text().empty())
        title->Characters()->SetText(TitleEnd);
    // The new line replaces the title's last character, the space the title or the last subtitle
    // ended in, and ends in a space itself for the next one.
    const int32_t last = title->Characters()->Count();
    title->Characters(last)->Insert("\n" + text + TitleEnd);
    const auto font = title->Characters(last)->Font();
    font->SetBold(false);
    font->SetSize(FontSize(ChineseSubTitleSize, SubTitleSize));
    return title;
}

std::shared_ptr<excel::Legend> ReportChart::AddLegend(bool surroundWithBorder) {
    RequireDataSeries();
    IgnoringExcelErrors([&] { chart_->Legend()->Delete(); });
    chart_->SetHasLegend(true);
    auto legend = chart_->Legend();
    legend->SetAutoScaleFont(false);
    legend->Font()->SetSize(FontSize(ChineseLegendSize, LegendSize));
    legend->SetPosition(excel::xlLegendPositionRight);
    const auto frame = legend->Border();
    if (surroundWithBorder) {
        frame->SetLineStyle(excel::xlContinuous);
        frame->SetColorIndex(LegendFrameColorIndex);
        frame->SetWeight(excel::xlThin);
    } else {
        frame->SetLineStyle(excel::xlLineStyleNone);
    }
    return legend;
}

}  // namespace vos
