#include "support/cell_comment.hpp"

#include "support/character_count.hpp"
#include "support/ignoring_excel_errors.hpp"
#include "support/library_error.hpp"
#include "support/text_margins.hpp"
#include "support/trim_blanks.hpp"

#include <excel/characters.hpp>
#include <excel/color_format.hpp>
#include <excel/comment.hpp>
#include <excel/constants.hpp>
#include <excel/fill_format.hpp>
#include <excel/font.hpp>
#include <excel/line_format.hpp>
#include <excel/range.hpp>
#include <excel/shape.hpp>
#include <excel/text_frame.hpp>

namespace vos {

namespace {

constexpr double CommentWidth = 216.0;
constexpr double CommentHeight = 90.0;
constexpr int32_t White = 0xFFFFFF;
constexpr int32_t Navy = 0x800000;
constexpr double OutlineWeight = 2.5;
constexpr double SideMargin = 3.6;
constexpr double TopAndBottomMargin = 5.76;

}  // namespace

void RequireCommentTexts(const std::string& headerText, const std::string& mainText) {
    if (TrimBlanks(headerText).empty())
        RaiseLibraryError(error_code::EmptyArgument, "headerText");
    if (TrimBlanks(mainText).empty())
        RaiseLibraryError(error_code::EmptyArgument, "mainText");
}

std::shared_ptr<excel::Comment> CreateCellComment(const std::shared_ptr<excel::Range>& whichCell,
                                                  const std::string& headerText, const std::string& mainText,
                                                  bool themeOutline, int32_t outlineThemeColor) {
    if (!whichCell)
        RaiseLibraryError(error_code::MissingObject, "whichCell");
    RequireCommentTexts(headerText, mainText);
    const std::string header = TrimBlanks(headerText);
    const std::string main = TrimBlanks(mainText);

    // From here on each step is formatting that Excel may refuse: a refused step is skipped.
    IgnoringExcelErrors([&] {
        if (const auto existing = whichCell->Comment())
            existing->Delete();
    });
    std::shared_ptr<excel::Comment> comment;
    IgnoringExcelErrors([&] { comment = whichCell->AddComment(header + "\n" + main); });
    if (!comment)
        return nullptr;
    const auto onShape = [&](auto&& step) { IgnoringExcelErrors([&] { step(*comment->Shape()); }); };
    onShape([](excel::Shape& shape) {
        shape.SetHeight(CommentHeight);
        shape.SetWidth(CommentWidth);
        shape.Fill()->ForeColor()->SetRGB(White);
    });
    onShape([&](excel::Shape& shape) {
        if (themeOutline)
            shape.Line()->ForeColor()->SetObjectThemeColor(outlineThemeColor);
        else
            shape.Line()->ForeColor()->SetRGB(Navy);
        shape.Line()->SetWeight(OutlineWeight);
    });
    onShape([&](excel::Shape& shape) {
        const auto headerFont =
            shape.TextFrame()->Characters(1, static_cast<int32_t>(CharacterCount(header)))->Font();
        headerFont->SetUnderline(excel::xlUnderlineStyleSingle);
        headerFont->SetBold(true);
    });
    onShape([](excel::Shape& shape) { SetTextMargins(*shape.TextFrame(), SideMargin, TopAndBottomMargin); });
    IgnoringExcelErrors([&] { comment->SetVisible(false); });
    return comment;
}

// The outline theme colour goes unused, as the theme outline is off.
std::shared_ptr<excel::Comment> CreateClientCellComment(const std::shared_ptr<excel::Range>& whichCell,
                                                        const std::string& headerText, const std::string& mainText) {
    return CreateCellComment(whichCell, headerText, mainText, false, excel::msoThemeColorAccent1);
}

}  // namespace vos
