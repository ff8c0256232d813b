#pragma once

#include "embedded/engine_fixture.hpp"

// A sheet with a small table of numbers (A1:C5: names in A, values in B and C) to chart.
class ChartTest : public EngineTest {
protected:
    void SetUp() override {
        EngineTest::SetUp();
        At("A1:C1")->SetValue(excel::Variant(std::vector<std::string>{"Name", "North", "South"}));
        const char* names[] = {"Jan", "Feb", "Mar", "Apr"};
        for (int32_t row = 2; row <= 5; ++row) {
            sheet->Cells(row, 1)->SetValue(excel::Variant(names[row - 2]));
            sheet->Cells(row, 2)->SetValue(excel::Variant(static_cast<double>(row * 10)));
            sheet->Cells(row, 3)->SetValue(excel::Variant(static_cast<double>(row * 3)));
        }
    }

    std::shared_ptr<excel::Chart> AddChart(int32_t type = excel::xlColumnClustered, double left = 100, double top = 50,
                                           double width = 360, double height = 216) {
        return sheet->Shapes()->AddChart(type, left, top, width, height)->Chart();
    }

    std::shared_ptr<excel::Series> AddSeries(const std::shared_ptr<excel::Chart>& chart, const char* values) {
        auto series = chart->SeriesCollection()->NewSeries();
        series->SetValues(excel::Variant(At(values)));
        return series;
    }
};

// The RGB Long of an RRGGBB colour.
constexpr int32_t RgbLong(uint32_t rrggbb) {
    return static_cast<int32_t>(((rrggbb & 0xFF) << 16) | (rrggbb & 0xFF00) | ((rrggbb >> 16) & 0xFF));
}
