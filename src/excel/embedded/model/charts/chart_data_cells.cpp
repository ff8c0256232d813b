#include "excel/embedded/model/charts/chart_data_cells.hpp"

#include "excel/embedded/model/cell_address.hpp"
#include "excel/embedded/model/cells/cell_content.hpp"
#include "excel/embedded/model/cells/cell_text.hpp"
#include "excel/embedded/model/charts/chart_model.hpp"
#include "excel/embedded/model/workbook_model.hpp"
#include "excel/embedded/model/worksheet_model.hpp"
#include "excel/embedded/text/general_format.hpp"

#include <algorithm>
#include <optional>

namespace excel::embedded {

namespace {

ChartValue ValueOf(const CellContent& content) {
    if (const double* number = std::get_if<double>(&content)) {
        return *number;
    }
    if (const auto* text = std::get_if<std::string_view>(&content)) {
        return std::string(*text);
    }
    return {};
}

std::string TextOf(const ChartValue& value) {
    if (const double* number = std::get_if<double>(&value)) {
        return FormatGeneral(*number);
    }
    if (const auto* text = std::get_if<std::string>(&value)) {
        return *text;
    }
    return {};
}

}  // namespace

ChartPoints PointsOf(const WorkbookModel& book, const ChartData& data) {
    ChartPoints points;
    if (data.kind == ChartData::Kind::Literal) {
        points.values = data.values;
        std::transform(data.values.begin(), data.values.end(), std::back_inserter(points.texts), TextOf);
        return points;
    }
    if (data.kind != ChartData::Kind::Reference) {
        return points;
    }
    const auto reference = ParseA1Reference(data.reference);
    const auto sheet = reference ? book.FindSheet(reference->sheet) : nullptr;
    if (sheet == nullptr) {
        points.resolved = false;
        return points;
    }
    bool first = true;
    for (const CellBlock& area : reference->areas) {
        for (int32_t row = area.top; row <= area.bottom; ++row) {
            for (int32_t column = area.left; column <= area.right; ++column) {
                const Cell* cell = sheet->Cells().Find(row, column);
                const CellContent content = ContentOf(cell, book.Strings(), book.OpenedFormulas());
                const std::string& format = book.Formats().Get(sheet->ResolvedFormat(row, column)).numberFormat;
                if (first) {
                    points.numberFormat = format;
                    first = false;
                }
                points.values.push_back(ValueOf(content));
                points.texts.push_back(DisplayText(content, format, book.Date1904()));
            }
        }
    }
    return points;
}

bool AllNumbers(const ChartPoints& points) {
    return std::all_of(points.values.begin(), points.values.end(),
                       [](const ChartValue& value) { return !std::holds_alternative<std::string>(value); });
}

ValueRange DataRangeOf(const WorkbookModel& book, const ChartModel& chart, const AxisModel& axis) {
    std::optional<ValueRange> range;
    const auto widen = [&](double value) {
        if (!range) {
            range = ValueRange{value, value};
        }
        range->minimum = std::min(range->minimum, value);
        range->maximum = std::max(range->maximum, value);
    };
    for (const auto& group : chart.Groups()) {
        if (group->axisGroup != axis.group) {
            continue;
        }
        const bool xValues = axis.type == xlCategory;
        if (xValues && group->kind != ChartGroupKind::Scatter) {
            continue;
        }
        if (group->grouping == ChartGrouping::PercentStacked) {
            widen(0.0);
            widen(1.0);
            continue;
        }
        std::vector<double> above;
        std::vector<double> below;
        for (const auto& series : group->series) {
            const ChartPoints points = PointsOf(book, xValues ? series->categories : series->values);
            for (std::size_t i = 0; i < points.values.size(); ++i) {
                const double* number = std::get_if<double>(&points.values[i]);
                if (number == nullptr) {
                    continue;
                }
                if (group->grouping != ChartGrouping::Stacked) {
                    widen(*number);
                    continue;
                }
                above.resize(std::max(above.size(), i + 1));
                below.resize(std::max(below.size(), i + 1));
                (*number >= 0.0 ? above[i] : below[i]) += *number;
            }
        }
        for (std::size_t i = 0; i < above.size(); ++i) {
            widen(above[i]);
            widen(below[i]);
        }
    }
    return range.value_or(ValueRange{});
}

}  // namespace excel::embedded
