#include "excel/embedded/document/chart_data_document_conversion.hpp"

#include "excel/embedded/model/charts/chart_data_cells.hpp"

#include <cctype>
#include <charconv>

namespace excel::embedded {

namespace {

// The shortest text that reads back as the number, with Excel's capital exponent.
std::string NumberText(double value) {
    char buffer[32];
    const auto result = std::to_chars(buffer, buffer + sizeof buffer, value);
    std::string text(buffer, result.ptr);
    for (char& c : text) {
        c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
    }
    return text;
}

}  // namespace

ooxml::ChartData DocumentChartData(const WorkbookModel& book, const ChartData& data) {
    ooxml::ChartData out;
    if (data.kind == ChartData::Kind::None) {
        return out;
    }
    const ChartPoints points = PointsOf(book, data);
    const bool numbers = AllNumbers(points);
    const bool reference = data.kind == ChartData::Kind::Reference;
    if (reference) {
        out.kind = numbers ? ooxml::ChartData::Kind::NumberReference : ooxml::ChartData::Kind::StringReference;
        out.formula = data.reference;
    } else {
        out.kind = numbers ? ooxml::ChartData::Kind::NumberLiteral : ooxml::ChartData::Kind::StringLiteral;
    }
    if (numbers) {
        out.formatCode = reference ? points.numberFormat : "General";
    }
    out.pointCount = static_cast<uint32_t>(points.values.size());
    for (std::size_t i = 0; i < points.values.size(); ++i) {
        const ChartValue& value = points.values[i];
        if (std::holds_alternative<std::monostate>(value)) {
            continue;  // a blank point is left out of the cache
        }
        const double* number = std::get_if<double>(&value);
        out.points.emplace_back(static_cast<uint32_t>(i), numbers && number ? NumberText(*number) : points.texts[i]);
    }
    return out;
}

}  // namespace excel::embedded
