// The members of VosXLRep7 that take typed arrays, which VBScript cannot make (it makes only 0-based
// arrays of variants); a compiled automation client can. The tornado's refusals, each with its code
// and text, a tornado built through automation on the engine's automation object, and a data column
// of an element type the table refuses.

#include "excel/com/com_object.hpp"
#include "excel/com/dispatch_caller.hpp"

#include <excel/com.hpp>
#include <excel/excel.hpp>

#include <gtest/gtest.h>

#include <cstdio>
#include <memory>
#include <string>
#include <vector>

namespace {

using excel::SafeArray;
using excel::Variant;
using excel::com::Argument;
using excel::com::DispatchCaller;

// Late-bound calls on an object an automation call answered.
DispatchCaller CallerOf(const Variant& object) {
    const auto& holder = dynamic_cast<const excel::com::DispatchHolder&>(*object.ToObject());
    return DispatchCaller(holder.Dispatch(), holder.Type(), excel::com::ComObjects());
}

class TypedArraysThroughAutomation : public ::testing::Test {
protected:
    void SetUp() override {
        app = excel::com::CreateApplication("VosExcelEngine.Application");
        CLSID reportingClass{};
        ASSERT_EQ(CLSIDFromProgID(L"VosXLRep7.VosExcelReporting", &reportingClass), S_OK);
        IDispatch* dispatch = nullptr;
        ASSERT_EQ(CoCreateInstance(reportingClass, nullptr, CLSCTX_INPROC_SERVER, IID_IDispatch,
                                   reinterpret_cast<void**>(&dispatch)),
                  S_OK);
        reporting = excel::com::ComObjects().Wrap(dispatch);
        dispatch->Release();
        const Argument workbookArguments[] = {Variant(app), Variant("TornadoTest")};
        report = CallerOf(reporting).Call("NewReportWorkbook", workbookArguments);
        const Argument sheetArguments[] = {Variant("Tornado")};
        sheet = CallerOf(report).Call("NewReportWorksheet", sheetArguments);
    }

    Variant AddChart(int32_t type) {
        const Argument arguments[] = {Variant(type)};
        return CallerOf(sheet).Call("AddChart", arguments);
    }

    // The code and text of the refusal of AddTornadoData with these arguments ("" when accepted).
    std::string TornadoDataRefusal(const Variant& chart, int16_t bars, const Variant& minValues,
                                   const Variant& maxValues) {
        const Argument arguments[] = {Variant(bars), minValues, maxValues};
        try {
            CallerOf(chart).Call("AddTornadoData", arguments);
            return "";
        } catch (const excel::AutomationError& error) {
            char code[16];
            std::snprintf(code, sizeof code, "%08X ", static_cast<unsigned>(error.code()));
            return code + std::string(error.what());
        }
    }

    std::shared_ptr<excel::Application> app;
    std::shared_ptr<excel::Object> reporting;
    Variant report;
    Variant sheet;
};

Variant Doubles(std::vector<double> values, int32_t lowerBound = 1) {
    return Variant(SafeArray::Doubles(values, lowerBound));
}

constexpr int32_t VosChartColumn = 16;
constexpr int32_t VosChartTornado = 64;

TEST_F(TypedArraysThroughAutomation, EachRefusalArrivesWithItsCodeAndText) {
    const Variant columns = AddChart(VosChartColumn);
    EXPECT_EQ(TornadoDataRefusal(columns, 2, Doubles({-1, -2}), Doubles({1, 2})),
              "8004000B Invalid type of data for chart's type.");
    const Variant tornado = AddChart(VosChartTornado);
    EXPECT_EQ(TornadoDataRefusal(tornado, 0, Doubles({-1}), Doubles({1})), "80040003 numBars");
    EXPECT_EQ(TornadoDataRefusal(tornado, 33, Doubles({-1}), Doubles({1})), "80040003 numBars");
    EXPECT_EQ(TornadoDataRefusal(tornado, 2, Variant(SafeArray(excel::VarType::Double, {})), Doubles({1, 2})),
              "80040001 minValues is empty.");
    EXPECT_EQ(
        TornadoDataRefusal(tornado, 2, Variant(SafeArray(excel::VarType::Double, {{1, 2}, {1, 1}})), Doubles({1, 2})),
        "80040001 minValue has the wrong number of dimensions.");
    EXPECT_EQ(TornadoDataRefusal(tornado, 2, Doubles({-1, -2, -3}), Doubles({1, 2})),
              "80040001 minValue array does not have the correct size.");
    EXPECT_EQ(TornadoDataRefusal(tornado, 2, Doubles({-1, -2}, 0), Doubles({1, 2})),
              "80040001 minValues array must have a lower bound of 1.");
    EXPECT_EQ(TornadoDataRefusal(tornado, 2, Doubles({-1, -2}), Variant(SafeArray(excel::VarType::Double, {}))),
              "80040001 maxValues is empty.");
    EXPECT_EQ(TornadoDataRefusal(tornado, 2, Doubles({-1, -2}), Doubles({1})),
              "80040001 maxValue array does not have the correct size.");
    EXPECT_EQ(TornadoDataRefusal(tornado, 2, Doubles({-1, -2}), Doubles({1, 2}, 0)),
              "80040001 maxValues array must have a lower bound of 1.");
    EXPECT_EQ(TornadoDataRefusal(tornado, 2, Doubles({-1, 5}), Doubles({1, 2})),
              "80040001 maxValue must be greater than minValue.");

    const Argument noLabels[] = {Variant(std::shared_ptr<excel::Object>())};
    try {
        CallerOf(tornado).Call("AddTornadoYAxis", noLabels);
        ADD_FAILURE() << "AddTornadoYAxis before any data";
    } catch (const excel::AutomationError& error) {
        EXPECT_EQ(std::string(error.what()),
                  "Operation can not be performed until the chart has at least one data series.");
    }

    EXPECT_EQ(TornadoDataRefusal(tornado, 2, Doubles({-1, 2}), Doubles({1, 2})), "");  // equal values: an empty bar
    EXPECT_EQ(TornadoDataRefusal(tornado, 2, Doubles({-1, 2}), Doubles({1, 2})),
              "8004000B Chart already has a data series.");
    try {
        CallerOf(tornado).Call("AddTornadoYAxis", noLabels);
        ADD_FAILURE() << "AddTornadoYAxis without labels";
    } catch (const excel::AutomationError& error) {
        EXPECT_EQ(static_cast<uint32_t>(error.code()), 0x80040002u);
        EXPECT_EQ(std::string(error.what()), "barLabelRange");
    }
}

TEST_F(TypedArraysThroughAutomation, ATableRefusesDataOfDates) {
    const Argument tableArguments[] = {Variant(int32_t{2}), Variant(int32_t{1}), Variant(int16_t{1}),
                                       Variant(int16_t{1})};
    const Variant table = CallerOf(sheet).Call("AddTable", tableArguments);
    SafeArray dates(excel::VarType::Date, {{1, 2}});
    const Argument dataArguments[] = {Variant(int32_t{1}), Variant(std::move(dates))};
    try {
        CallerOf(table).Call("WriteDataToColumn", dataArguments);
        ADD_FAILURE() << "a column of dates";
    } catch (const excel::AutomationError& error) {
        EXPECT_EQ(static_cast<uint32_t>(error.code()), 0x80040001u);
        EXPECT_EQ(std::string(error.what()), "Invalid dataArray type.");
    }
}

TEST_F(TypedArraysThroughAutomation, ATornadoBuiltThroughAutomationHasItsFourSeries) {
    const Variant tornado = AddChart(VosChartTornado);
    EXPECT_EQ(TornadoDataRefusal(tornado, 3, Doubles({-48, -12.5, 4}), Doubles({52, 30, 16})), "");
    const Variant chart = CallerOf(tornado).Get("Chart");
    const auto series = CallerOf(CallerOf(chart).Get("SeriesCollection"));
    EXPECT_EQ(series.Get("Count"), Variant(int32_t{4}));
}

}  // namespace
