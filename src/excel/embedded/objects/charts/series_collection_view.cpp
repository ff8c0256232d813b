#include "excel/embedded/objects/charts/series_collection_view.hpp"

#include "excel/embedded/engine_errors.hpp"
#include "excel/embedded/model/workbook_model.hpp"
#include "excel/embedded/objects/charts/series_view.hpp"
#include "excel/embedded/text/utf8_text.hpp"

namespace excel::embedded {

namespace {

[[noreturn]] void RefuseIndex() {
    ThrowRefused("Unable to get the Item property of the SeriesCollection class");
}

}  // namespace

std::vector<std::shared_ptr<SeriesModel>> SeriesCollectionView::series() const {
    const ChartModel& chart = chart_.Chart();
    if (group_ == nullptr) {
        return chart.Series();
    }
    for (const auto& group : chart.Groups()) {
        if (group == group_) {
            return group->series;
        }
    }
    ThrowObjectRequired();
}

int32_t SeriesCollectionView::Count() {
    return static_cast<int32_t>(series().size());
}

std::shared_ptr<excel::Series> SeriesCollectionView::Item(const Variant& index) {
    const auto all = series();
    if (index.Type() == VarType::String) {
        const std::string name = index.ToString();
        const WorkbookModel& book = chart_.Sheet().Book();
        for (const auto& member : all) {
            if (EqualsIgnoringCase(SeriesName(book, *member), name)) {
                return std::make_shared<SeriesView>(chart_, member);
            }
        }
        RefuseIndex();
    }
    if (index.IsEmpty()) {
        RefuseIndex();
    }
    const int32_t position = index.ToInt();
    if (position < 1 || position > static_cast<int32_t>(all.size())) {
        RefuseIndex();
    }
    return std::make_shared<SeriesView>(chart_, all[static_cast<size_t>(position - 1)]);
}

std::shared_ptr<excel::Series> SeriesCollectionView::NewSeries() {
    series();
    auto created = chart_.Chart().NewSeries();
    chart_.Changed();
    return std::make_shared<SeriesView>(chart_, std::move(created));
}

}  // namespace excel::embedded
