#pragma once

#include "failure_report.hpp"

#include <excel/excel.hpp>

#include <cmath>
#include <cstdint>
#include <cstdio>
#include <memory>
#include <string>
#include <vector>

namespace conformance {

// Numbers as the messages show them: "{1,2.5}".
inline std::string NumbersText(const std::vector<double>& numbers) {
    std::string text = "{";
    for (double number : numbers) {
        char buffer[32];
        std::snprintf(buffer, sizeof buffer, "%s%.15g", text.size() > 1 ? "," : "", number);
        text += buffer;
    }
    return text + "}";
}

// The numbers of an array of values, an empty element as NaN; none for a value that is no array.
inline std::vector<double> NumberElements(const excel::Variant& values) {
    std::vector<double> numbers;
    if (!values.IsArray())
        return numbers;
    for (const excel::Variant& element : values.Array().Elements())
        numbers.push_back(element.IsEmpty() ? std::nan("") : element.ToDouble());
    return numbers;
}

// What one chart of a reopened workbook reads back, each expectation named after its sheet and its
// number there. The writers' own checks build on it.
class ChartExpectations {
public:
    ChartExpectations(Failures& failures, excel::Worksheet& sheet, int32_t index, int32_t type)
        : failures_(failures), name_(sheet.Name() + " chart " + std::to_string(index)) {
        const int32_t count = sheet.ChartObjects()->Count();
        Expect(index <= count, "exists (" + std::to_string(count) + " charts)");
        if (index > count)
            return;
        object_ = sheet.ChartObjects(excel::Variant(index));
        chart_ = object_->Chart();
        Expect(chart_->ChartType() == type,
               "type " + std::to_string(type) + ", found " + std::to_string(chart_->ChartType()));
    }

    // Whether the chart is there to check.
    explicit operator bool() const { return chart_ != nullptr; }
    excel::ChartObject& Object() { return *object_; }
    excel::Chart& Chart() { return *chart_; }

    void Expect(bool holds, const std::string& expectation) { failures_.Expect(holds, name_ + ": " + expectation); }

    // The series at position, by its formula, its name and its values.
    std::shared_ptr<excel::Series> Series(int32_t position, const std::string& formula, const std::string& name,
                                          const std::vector<double>& values) {
        const int32_t count = chart_->SeriesCollection()->Count();
        const std::string where = "series " + std::to_string(position);
        Expect(position <= count, where + " exists (" + std::to_string(count) + " series)");
        if (position > count)
            return nullptr;
        auto series = chart_->SeriesCollection(excel::Variant(position));
        Expect(series->Formula() == formula, where + " formula " + formula + ", found " + series->Formula());
        Expect(series->Name() == name, where + " name '" + name + "', found '" + series->Name() + "'");
        const auto found = NumberElements(series->Values());
        Expect(found == values, where + " values " + NumbersText(values) + ", found " + NumbersText(found));
        return series;
    }

protected:
    std::shared_ptr<excel::ChartObject> object_;
    std::shared_ptr<excel::Chart> chart_;

private:
    Failures& failures_;
    std::string name_;
};

}  // namespace conformance
