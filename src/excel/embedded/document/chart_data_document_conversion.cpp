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

ooxml::ChartData DocumentChartData(const WorkbookModel& book, const ChartData& data, const ooxml::ChartData* opened) {
    ooxml::ChartData out;
    if (data.kind == ChartData::Kind::Kept && opened != nullptr) {
        return *opened;
    }
    if (data.kind == ChartData::Kind::None || data.kind == ChartData::Kind::Kept) {
        return out;
    }
    const ChartPoints points = PointsOf(book, data);
    if (!points.resolved && opened != nullptr && opened->formula == data.reference) {
        return *opened;
    }
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
        // The file's cache says a cell's format as the writer's locale shows it (a short date).
        if (opened != nullptr && opened->formula == data.reference && !opened->formatCode.empty()) {
            out.formatCode = opened->formatCode;
        }
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

ChartData ChartDataFromDocument(const ooxml::ChartData& data) {
    using Kind = ooxml::ChartData::Kind;
    switch (data.kind) {
        case Kind::None:
            return {};
        case Kind::NumberReference:
        case Kind::StringReference:
            return ReferenceData(data.formula);
        case Kind::NumberLiteral:
        case Kind::StringLiteral: {
            std::vector<ChartValue> values(data.pointCount);
            for (const auto& [index, text] : data.points) {
                if (index >= values.size()) {
                    continue;
                }
                double number = 0.0;
                const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
                const bool numeric =
                    data.kind == Kind::NumberLiteral && error == std::errc() && end == text.data() + text.size();
                values[index] = numeric ? ChartValue(number) : ChartValue(text);
            }
            return LiteralData(std::move(values));
        }
        case Kind::Other:
            break;
    }
    ChartData kept;
    kept.kind = ChartData::Kind::Kept;
    return kept;
}

}  // namespace excel::embedded
