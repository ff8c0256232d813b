#include "chart/report_chart.hpp"

#include "support/character_count.hpp"
#include "support/library_error.hpp"
#include "support/support_services.hpp"
#include "support/trim_blanks.hpp"

#include <excel/characters.hpp>
#include <excel/chart.hpp>
#include <excel/chart_area.hpp>
#include <excel/constants.hpp>
#include <excel/font.hpp>
#include <excel/shape.hpp>
#include <excel/shapes.hpp>
#include <excel/text_frame.hpp>

#include <chrono>
#include <cmath>
#include <random>

namespace vos {

namespace {

// Watermark shapes are named with this prefix and a random number from 100 to 32767.
constexpr const char* NamePrefix = "gwm_";
constexpr double NameNumbers = 32668.0;
constexpr int32_t LowestNameNumber = 100;

// Five boxes on one spot make the text dense enough to read through the plot; the repetition is
// what the watermark looks like.
constexpr int32_t BoxCount = 5;
// The first box's name ends in ten spaces, each later one in one space fewer.
constexpr int32_t NameSpacesBeforeFirst = 11;

constexpr double SideInset = 20.0;
constexpr double HalfBoxHeight = 25.0;
constexpr double BoxHeight = 50.0;

constexpr const char* FontName = "Arial";
constexpr const char* FontStyle = "Regular";
constexpr double PrimarySize = 14.0;
constexpr double SecondarySize = 10.0;
constexpr int32_t LightGrey = 12632256;  // red, green and blue 192

// A new base name each call, from a generator seeded by the clock.
std::string RandomBaseName() {
    std::mt19937 generator(
        static_cast<std::mt19937::result_type>(std::chrono::high_resolution_clock::now().time_since_epoch().count()));
    const double draw = std::uniform_real_distribution<double>(0.0, 1.0)(generator);
    return NamePrefix + std::to_string(static_cast<int32_t>(std::floor(draw * NameNumbers)) + LowestNameNumber);
}

// Geometry is handed to Excel in single precision, as the drawing layer keeps it.
double Single(double points) {
    return static_cast<float>(points);
}

}  // namespace

void ReportChart::AddWatermark(const std::string& primaryText, const std::string& secondaryText,
                               const std::string& macroToRunWhenClicked) {
    std::string primary = TrimBlanks(primaryText);
    std::string secondary = TrimBlanks(secondaryText);
    if (secondary.empty() && primary.find('\n') != std::string::npos) {
        std::string rest = primary;
        primary = Support().Strings().SplitFirstToken(rest, "\n");
        secondary = rest;
    }
    RequireDataSeries();
    if (primary.empty())
        RaiseLibraryError(error_code::EmptyArgument, "primaryText");

    const std::string text = secondary.empty() ? primary : primary + "\n" + secondary;
    const std::string baseName = RandomBaseName();
    for (int32_t box = 1; box <= BoxCount; ++box) {
        const auto area = chart_->ChartArea();
        const double left = area->Left();
        const double width = area->Width();
        const double height = area->Height();
        const auto shape = chart_->Shapes()->AddTextbox(excel::msoTextOrientationHorizontal, Single(left + SideInset),
                                                        Single(height * 0.5 - HalfBoxHeight),
                                                        Single(width - 2 * SideInset), Single(BoxHeight));
        shape->SetName(baseName + std::string(static_cast<size_t>(NameSpacesBeforeFirst - box), ' '));
        shape->SetPlacement(excel::xlMoveAndSize);

        const auto frame = shape->TextFrame();
        frame->Characters()->SetText(text);
        const auto font = frame->Characters()->Font();
        font->SetName(FontName);
        font->SetFontStyle(FontStyle);
        font->SetSize(PrimarySize);
        font->SetColor(LightGrey);
        if (!secondary.empty()) {
            const auto secondLine = frame->Characters(static_cast<int32_t>(CharacterCount(primary)) + 2,
                                                      static_cast<int32_t>(CharacterCount(secondary)));
            secondLine->Font()->SetSize(SecondarySize);
        }
        frame->SetHorizontalAlignment(excel::xlCenter);
        frame->SetVerticalAlignment(excel::xlCenter);
        frame->SetAutoSize(false);
        shape->SetOnAction(macroToRunWhenClicked);
    }
}

}  // namespace vos
