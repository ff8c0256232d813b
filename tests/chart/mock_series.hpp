#pragma once

#include <excel/series.hpp>

#include <gmock/gmock.h>

#include <memory>
#include <string>

// A series of an Excel that the test scripts: it answers and refuses as each test sets it up.
class MockSeries : public excel::Series {
public:
    MOCK_METHOD(std::string, Name, (), (override));
    MOCK_METHOD(void, SetName, (const std::string& name), (override));
    MOCK_METHOD(excel::Variant, Values, (), (override));
    MOCK_METHOD(void, SetValues, (const excel::Variant& values), (override));
    MOCK_METHOD(excel::Variant, XValues, (), (override));
    MOCK_METHOD(void, SetXValues, (const excel::Variant& values), (override));
    MOCK_METHOD(std::string, Formula, (), (override));
    MOCK_METHOD(int32_t, PlotOrder, (), (override));
    MOCK_METHOD(int32_t, AxisGroup, (), (override));
    MOCK_METHOD(void, SetAxisGroup, (int32_t group), (override));
    MOCK_METHOD(int32_t, ChartType, (), (override));
    MOCK_METHOD(void, ClearFormats, (), (override));
    MOCK_METHOD(std::shared_ptr<excel::Interior>, Interior, (), (override));
    MOCK_METHOD(std::shared_ptr<excel::ChartFillFormat>, Fill, (), (override));
    MOCK_METHOD(std::shared_ptr<excel::Border>, Border, (), (override));
    MOCK_METHOD(int32_t, MarkerStyle, (), (override));
    MOCK_METHOD(void, SetMarkerStyle, (int32_t style), (override));
    MOCK_METHOD(int32_t, MarkerSize, (), (override));
    MOCK_METHOD(void, SetMarkerSize, (int32_t points), (override));
    MOCK_METHOD(int32_t, MarkerForegroundColor, (), (override));
    MOCK_METHOD(void, SetMarkerForegroundColor, (int32_t rgb), (override));
    MOCK_METHOD(int32_t, MarkerForegroundColorIndex, (), (override));
    MOCK_METHOD(void, SetMarkerForegroundColorIndex, (int32_t index), (override));
    MOCK_METHOD(int32_t, MarkerBackgroundColor, (), (override));
    MOCK_METHOD(void, SetMarkerBackgroundColor, (int32_t rgb), (override));
    MOCK_METHOD(int32_t, MarkerBackgroundColorIndex, (), (override));
    MOCK_METHOD(void, SetMarkerBackgroundColorIndex, (int32_t index), (override));
    MOCK_METHOD(void, Delete, (), (override));
};
