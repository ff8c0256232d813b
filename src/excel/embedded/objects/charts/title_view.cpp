#include "excel/embedded/objects/charts/title_view.hpp"

#include "excel/embedded/engine_errors.hpp"
#include "excel/embedded/objects/charts/chart_border_view.hpp"
#include "excel/embedded/objects/charts/chart_interior_view.hpp"
#include "excel/embedded/objects/charts/chart_text_targets.hpp"
#include "excel/embedded/objects/range/characters_view.hpp"

namespace excel::embedded {

namespace {

constexpr uint32_t TextBlack = 0;

bool IsOrientation(int32_t orientation) {
    return orientation == xlHorizontal || orientation == xlUpward || orientation == xlDownward ||
           orientation == xlVertical || (orientation >= -90 && orientation <= 90);
}

}  // namespace

template <class Interface>
void TitleView<Interface>::edit(const std::function<void(ChartTitleModel&)>& change) {
    change(title());
    chart_.Changed();
}

template <class Interface>
std::string TitleView<Interface>::Text() {
    return title().text.text;
}

template <class Interface>
void TitleView<Interface>::SetText(const std::string& text) {
    // The new text takes the font of the title's first character, as typing over a title does.
    edit([&](ChartTitleModel& changed) {
        if (!changed.text.runs.empty() && changed.text.runs.front().font) {
            changed.font = *changed.text.runs.front().font;
        }
        changed.text = RichText{text, {}};
        changed.textFromFile = false;
    });
}

template <class Interface>
std::string TitleView<Interface>::Caption() {
    return Text();
}

template <class Interface>
void TitleView<Interface>::SetCaption(const std::string& text) {
    SetText(text);
}

template <class Interface>
std::shared_ptr<excel::Characters> TitleView<Interface>::Characters(int32_t start, int32_t length) {
    title();
    if (start < 1 || length < -1) {
        const std::string owner = std::is_same_v<Interface, excel::ChartTitle> ? "ChartTitle" : "AxisTitle";
        ThrowRefused("Unable to get the Characters property of the " + owner + " class");
    }
    return std::make_shared<CharactersView>(std::make_shared<TitleRichText>(chart_, find_), start, length);
}

template <class Interface>
std::shared_ptr<excel::Font> TitleView<Interface>::Font() {
    return Characters(1, -1)->Font();
}

template <class Interface>
bool TitleView<Interface>::AutoScaleFont() {
    return title().autoScaleFont;
}

template <class Interface>
void TitleView<Interface>::SetAutoScaleFont(bool automatic) {
    edit([&](ChartTitleModel& changed) { changed.autoScaleFont = automatic; });
}

template <class Interface>
int32_t TitleView<Interface>::Orientation() {
    return title().orientation;
}

template <class Interface>
void TitleView<Interface>::SetOrientation(int32_t orientation) {
    if (!IsOrientation(orientation)) {
        ThrowRefused("Unable to set the Orientation property of the title");
    }
    edit([&](ChartTitleModel& changed) {
        changed.orientation = orientation;
        changed.textFromFile = false;
    });
}

template <class Interface>
ShapeBounds TitleView<Interface>::bounds() const {
    return place_(chart_.Chart(), chart_.Width(), chart_.Height());
}

template <class Interface>
double TitleView<Interface>::Left() {
    return bounds().left;
}

// Moving a title by hand fixes both its left and its top where they are.
template <class Interface>
void TitleView<Interface>::SetLeft(double points) {
    const ShapeBounds now = bounds();
    edit([&](ChartTitleModel& changed) {
        changed.left = points;
        changed.top = changed.top.value_or(now.top);
    });
}

template <class Interface>
double TitleView<Interface>::Top() {
    return bounds().top;
}

template <class Interface>
void TitleView<Interface>::SetTop(double points) {
    const ShapeBounds now = bounds();
    edit([&](ChartTitleModel& changed) {
        changed.top = points;
        changed.left = changed.left.value_or(now.left);
    });
}

template <class Interface>
double TitleView<Interface>::Width() {
    return bounds().width;
}

template <class Interface>
double TitleView<Interface>::Height() {
    return bounds().height;
}

template <class Interface>
std::shared_ptr<excel::Border> TitleView<Interface>::Border() {
    title();
    auto find = find_;
    return std::make_shared<ChartBorderView>(
        ChartFormatTarget{chart_, [find](ChartModel& chart) -> ChartElementFormat& { return find(chart).format; },
                          [](ChartModel&) { return ShapeColorFromRgb(TextBlack); }, false, false});
}

template <class Interface>
std::shared_ptr<excel::Interior> TitleView<Interface>::Interior() {
    title();
    auto find = find_;
    return std::make_shared<ChartInteriorView>(
        ChartFormatTarget{chart_, [find](ChartModel& chart) -> ChartElementFormat& { return find(chart).format; },
                          [](ChartModel&) { return ShapeColorFromRgb(0xFFFFFF); }, false, false});
}

template <class Interface>
void TitleView<Interface>::Delete() {
    title();
    remove_(chart_.Chart());
    chart_.Changed();
}

template class TitleView<excel::ChartTitle>;
template class TitleView<excel::AxisTitle>;

}  // namespace excel::embedded
