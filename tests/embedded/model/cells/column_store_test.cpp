#include "excel/embedded/model/cell_address.hpp"
#include "excel/embedded/model/cells/column_store.hpp"
#include "excel/embedded/model/worksheet_model.hpp"
#include "excel/embedded/objects/book/worksheet_view.hpp"

#include "embedded/engine_fixture.hpp"

#include <gtest/gtest.h>

#include <vector>

namespace excel::embedded {
namespace {

ColumnInfo Width(double width) {
    ColumnInfo info;
    info.SetWidth(width);
    return info;
}

void SetWidth(ColumnStore& store, int32_t first, int32_t last, double width) {
    store.Update(first, last, [&](ColumnInfo& info) { info.SetWidth(width); });
}

TEST(ColumnStoreTest, EmptyStoreAnswersDefaultEverywhere) {
    const ColumnStore store;
    EXPECT_EQ(store.Get(1), ColumnInfo{});
    EXPECT_EQ(store.Get(MaxColumn), ColumnInfo{});
    EXPECT_TRUE(store.Runs().empty());
}

TEST(ColumnStoreTest, WholeRangeUpdateIsOneRun) {
    ColumnStore store;
    SetWidth(store, 1, MaxColumn, 8.45);
    EXPECT_EQ(store.Runs(), (std::vector<ColumnRun>{{1, MaxColumn, Width(8.45)}}));
    EXPECT_EQ(store.Get(1).width, 8.45);
    EXPECT_EQ(store.Get(MaxColumn).width, 8.45);

    store.Update(1, MaxColumn, [](ColumnInfo& info) { info.hidden = true; });
    ASSERT_EQ(store.Runs().size(), 1u);
    EXPECT_TRUE(store.Runs()[0].info.hidden);
}

TEST(ColumnStoreTest, UpdateInsideARunSplitsItAndUndoingJoinsItAgain) {
    ColumnStore store;
    SetWidth(store, 1, MaxColumn, 8.45);
    SetWidth(store, 3, 4, 20.0);
    EXPECT_EQ(store.Runs(),
              (std::vector<ColumnRun>{{1, 2, Width(8.45)}, {3, 4, Width(20.0)}, {5, MaxColumn, Width(8.45)}}));
    EXPECT_EQ(store.Get(2).width, 8.45);
    EXPECT_EQ(store.Get(3).width, 20.0);
    EXPECT_EQ(store.Get(4).width, 20.0);
    EXPECT_EQ(store.Get(5).width, 8.45);

    SetWidth(store, 3, 4, 8.45);
    EXPECT_EQ(store.Runs(), (std::vector<ColumnRun>{{1, MaxColumn, Width(8.45)}}));
}

TEST(ColumnStoreTest, UpdateAtTheEdgesOfTheSheet) {
    ColumnStore store;
    SetWidth(store, 1, 1, 5.0);
    SetWidth(store, MaxColumn, MaxColumn, 7.0);
    EXPECT_EQ(store.Runs(), (std::vector<ColumnRun>{{1, 1, Width(5.0)}, {MaxColumn, MaxColumn, Width(7.0)}}));
    EXPECT_EQ(store.Get(1).width, 5.0);
    EXPECT_EQ(store.Get(2), ColumnInfo{});
    EXPECT_EQ(store.Get(MaxColumn - 1), ColumnInfo{});
    EXPECT_EQ(store.Get(MaxColumn).width, 7.0);
}

TEST(ColumnStoreTest, NeighbouringEqualUpdatesJoin) {
    ColumnStore store;
    SetWidth(store, 1, 2, 10.0);
    SetWidth(store, 5, 6, 10.0);
    SetWidth(store, 3, 4, 10.0);
    EXPECT_EQ(store.Runs(), (std::vector<ColumnRun>{{1, 6, Width(10.0)}}));
}

TEST(ColumnStoreTest, ResettingToDefaultLeavesNoRun) {
    ColumnStore store;
    SetWidth(store, 2, 9, 10.0);
    store.Update(2, 9, [](ColumnInfo& info) { info = ColumnInfo{}; });
    EXPECT_TRUE(store.Runs().empty());
}

TEST(ColumnStoreTest, UpdateVisitsEachSpanOnceIncludingDefaultGaps) {
    ColumnStore store;
    SetWidth(store, 3, 4, 10.0);
    std::vector<double> seen;
    store.Update(1, 6, [&](ColumnInfo& info) {
        seen.push_back(info.width);
        info.format = 7;
    });
    EXPECT_EQ(seen, (std::vector<double>{-1.0, 10.0, -1.0}));
    EXPECT_EQ(store.Runs(), (std::vector<ColumnRun>{{1, 2, ColumnInfo{.format = 7}},
                                                    {3, 4, ColumnInfo{.width = 10.0, .customWidth = true, .format = 7}},
                                                    {5, 6, ColumnInfo{.format = 7}}}));
}

TEST(ColumnStoreTest, ForEachSpanCoversTheRangeWithClippedRunsAndDefaultGaps) {
    ColumnStore store;
    SetWidth(store, 3, 6, 10.0);
    std::vector<ColumnRun> spans;
    store.ForEachSpan(4, 8, [&](int32_t first, int32_t last, const ColumnInfo& info) {
        spans.push_back(ColumnRun{first, last, info});
    });
    EXPECT_EQ(spans, (std::vector<ColumnRun>{{4, 6, Width(10.0)}, {7, 8, ColumnInfo{}}}));
}

TEST(ColumnStoreTest, InsertCopiesTheGivenColumnAndShiftsTheRest) {
    ColumnStore store;
    SetWidth(store, 2, 3, 10.0);
    store.Insert(3, 2, 2);
    EXPECT_EQ(store.Runs(), (std::vector<ColumnRun>{{2, 5, Width(10.0)}}));

    store.Insert(1, 1, 0);
    EXPECT_EQ(store.Runs(), (std::vector<ColumnRun>{{3, 6, Width(10.0)}}));
}

TEST(ColumnStoreTest, InsertDropsColumnsPushedPastTheLast) {
    ColumnStore store;
    SetWidth(store, MaxColumn - 1, MaxColumn, 10.0);
    store.Insert(MaxColumn, 1, 0);
    EXPECT_EQ(store.Runs(), (std::vector<ColumnRun>{{MaxColumn - 1, MaxColumn - 1, Width(10.0)}}));

    store.Insert(1, 1, 0);
    EXPECT_EQ(store.Runs(), (std::vector<ColumnRun>{{MaxColumn, MaxColumn, Width(10.0)}}));
    store.Insert(1, 1, 0);
    EXPECT_TRUE(store.Runs().empty());
}

TEST(ColumnStoreTest, InsertAtTheLastColumnCopiesIntoIt) {
    ColumnStore store;
    SetWidth(store, 1, 1, 4.0);
    store.Insert(MaxColumn, 3, 1);
    EXPECT_EQ(store.Runs(), (std::vector<ColumnRun>{{1, 1, Width(4.0)}, {MaxColumn, MaxColumn, Width(4.0)}}));
}

TEST(ColumnStoreTest, InsertIntoAWholeSheetRunCopyingItKeepsOneRun) {
    ColumnStore store;
    SetWidth(store, 1, MaxColumn, 8.45);
    store.Insert(3, 5, 2);
    EXPECT_EQ(store.Runs(), (std::vector<ColumnRun>{{1, MaxColumn, Width(8.45)}}));
    store.Insert(1, 5, 0);
    EXPECT_EQ(store.Runs(), (std::vector<ColumnRun>{{6, MaxColumn, Width(8.45)}}));
}

TEST(ColumnStoreTest, RemoveShiftsLaterColumnsBackAndJoinsTheSeam) {
    ColumnStore store;
    SetWidth(store, 1, 2, 10.0);
    SetWidth(store, 3, 4, 20.0);
    SetWidth(store, 5, 6, 10.0);
    store.Remove(3, 2);
    EXPECT_EQ(store.Runs(), (std::vector<ColumnRun>{{1, 4, Width(10.0)}}));
}

TEST(ColumnStoreTest, RemoveAtTheEdgesBringsDefaultColumnsInAtTheEnd) {
    ColumnStore store;
    SetWidth(store, 1, MaxColumn, 8.45);
    store.Remove(1, 1);
    EXPECT_EQ(store.Runs(), (std::vector<ColumnRun>{{1, MaxColumn - 1, Width(8.45)}}));
    store.Remove(MaxColumn - 1, 1);
    EXPECT_EQ(store.Runs(), (std::vector<ColumnRun>{{1, MaxColumn - 2, Width(8.45)}}));
    EXPECT_EQ(store.Get(MaxColumn), ColumnInfo{});
}

TEST(ColumnStoreTest, RemoveInsideARunShortensIt) {
    ColumnStore store;
    SetWidth(store, 2, 9, 10.0);
    store.Remove(4, 3);
    EXPECT_EQ(store.Runs(), (std::vector<ColumnRun>{{2, 6, Width(10.0)}}));
}

class ColumnRunsTest : public EngineTest {
protected:
    const ColumnStore& Columns() { return dynamic_cast<WorksheetView&>(*sheet).Model().Columns(); }
};

TEST_F(ColumnRunsTest, WholeSheetColumnWidthIsOneRun) {
    sheet->Cells()->SetColumnWidth(8.45);
    EXPECT_EQ(Columns().Runs(), (std::vector<ColumnRun>{{1, MaxColumn, Width(8.45)}}));

    sheet->Range("C:D")->SetColumnWidth(20.0);
    EXPECT_EQ(Columns().Runs().size(), 3u);
    sheet->Range("C:D")->SetColumnWidth(8.45);
    EXPECT_EQ(Columns().Runs().size(), 1u);
}

TEST_F(ColumnRunsTest, WholeSheetFormatAndHiddenColumnsStayRuns) {
    sheet->Cells()->SetColumnWidth(8.45);
    sheet->Cells()->Font()->SetBold(true);
    sheet->Range("B:C")->SetHidden(true);
    ASSERT_EQ(Columns().Runs().size(), 3u);
    EXPECT_EQ(Columns().Runs()[1].first, 2);
    EXPECT_EQ(Columns().Runs()[1].last, 3);
    EXPECT_TRUE(Columns().Runs()[1].info.hidden);
    EXPECT_EQ(Columns().Runs()[0].info.format, Columns().Runs()[2].info.format);
    EXPECT_NE(Columns().Runs()[0].info.format, 0u);
}

}  // namespace
}  // namespace excel::embedded
