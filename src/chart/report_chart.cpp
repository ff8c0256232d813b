#include "chart/report_chart.hpp"

#include "support/chart_type_check.hpp"
#include "support/language_font_size.hpp"
#include "support/library_error.hpp"

#include <excel/border.hpp>
#include <excel/chart.hpp>
#include <excel/chart_area.hpp>
#include <excel/chart_constants.hpp>
#include <excel/chart_object.hpp>
#include <excel/range.hpp>
#include <excel/series.hpp>
#include <excel/series_collection.hpp>
#include <excel/shape.hpp>
#include <excel/shapes.hpp>
#include <excel/worksheet.hpp>

namespace vos {

std::shared_ptr<excel::Range> ReportChart::AnchorCell() {
    return chart_->Parent()->TopLeftCell();
}

std::shared_ptr<excel::Chart> ReportChart::Chart() {
    return chart_;
}

VosChartType ReportChart::ChartType() {
    return chartType_;
}

void ReportChart::InitializeChart(const std::shared_ptr<VosExcelReportWorkbook>& owner, int32_t defaultLanguage,
                                  VosChartType p_ChartType, const std::shared_ptr<excel::Range>& anchorCell,
                                  double chartWidth, double chartHeight) {
    CheckChartType(p_ChartType, "p_ChartType");
    if (!anchorCell)
        RaiseLibraryError(error_code::MissingObject, "AnchorCell");
    // Written so that a width or height that is not a number is refused too.
    if (!(chartWidth > 0))
        RaiseLibraryError(error_code::OutOfRange, "chartWidth");
    if (!(chartHeight > 0))
        RaiseLibraryError(error_code::OutOfRange, "chartHeight");
    owner_ = owner;
    defaultLanguage_ = defaultLanguage;

    anchorCell->Select();
    const auto shape = anchorCell->Worksheet()->Shapes()->AddChart(excel::xlColumnClustered, anchorCell->Left(),
                                                                   anchorCell->Top(), chartWidth, chartHeight);
    chart_ = shape->Chart();
    chart_->Parent()->SetPlacement(excel::xlMove);
    const auto frame = chart_->ChartArea()->Border();
    frame->SetColorIndex(excel::xlColorIndexAutomatic);
    frame->SetWeight(excel::xlMedium);

    chartType_ = p_ChartType;
    const auto mapping = MappingOf(p_ChartType);
    if (!mapping)
        RaiseLibraryError(error_code::NotInEnumeration, "ChartType");
    if (mapping->excelChartType)
        chart_->SetChartType(*mapping->excelChartType);
    family_ = mapping->family;
}

int32_t ReportChart::SeriesCount() {
    return chart_->SeriesCollection()->Count();
}

std::shared_ptr<excel::Series> ReportChart::NewNamedSeries(const std::string& seriesName) {
    auto series = chart_->SeriesCollection()->NewSeries();
    if (!seriesName.empty())
        series->SetName(seriesName);
    return series;
}

double ReportChart::FontSize(double chineseSize, double otherSize) const {
    return SizeForLanguage(defaultLanguage_, chineseSize, otherSize);
}

}  // namespace vos
