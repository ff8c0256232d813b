#include "excel/embedded/model/shapes/cell_comments.hpp"

#include "excel/embedded/model/shapes/shape_placement.hpp"
#include "excel/embedded/model/worksheet_model.hpp"

#include <algorithm>
#include <vector>

namespace excel::embedded {

namespace {

constexpr int32_t noteFill = 0xE1FFFF;  // RGB Long of #FFFFE1
constexpr double gapRightOfCell = 11.25;
constexpr double riseAboveCell = 7.5;
constexpr double highestTop = 1.5;  // a note on the first row starts two pixels below the sheet's top
constexpr double noteWidth = 96.0;
constexpr double noteHeight = 55.5;
constexpr int32_t systemForegroundIndex = 81;  // the colour index notes' text is written with

FontFormat NoteFont() {
    FontFormat font;
    font.name = "Tahoma";
    font.size = 9.0;
    font.color = FormatColor{FormatColor::Kind::Indexed, 0, systemForegroundIndex, 0.0};
    font.scheme = FontScheme::None;
    return font;
}

}  // namespace

std::shared_ptr<ShapeModel> AddCellComment(WorksheetModel& sheet, int32_t row, int32_t column,
                                           const std::string& author, const std::string& text) {
    auto shape = sheet.Shapes().AddComment(CommentLink{row, column, author});
    shape->visible = false;
    shape->fill.color = ShapeColorFromRgb(noteFill);
    shape->line.color = ShapeColorFromRgb(0);
    shape->text.font = NoteFont();
    shape->text.text = RichText{text, {}};
    const double left = sheet.ColumnsPoints(1, column) + gapRightOfCell;
    const double top = std::max(sheet.RowsPoints(1, row - 1) - riseAboveCell, highestTop);
    Place(sheet, *shape, ShapeBounds{left, top, noteWidth, noteHeight});
    return shape;
}

void RemoveCellComments(WorksheetModel& sheet, const CellBlock& block) {
    std::vector<ShapeModel*> inBlock;
    for (const auto& shape : sheet.Shapes().All()) {
        if (shape->comment && block.Contains(shape->comment->row, shape->comment->column)) {
            inBlock.push_back(shape.get());
        }
    }
    for (ShapeModel* shape : inBlock) {
        sheet.Shapes().Remove(*shape);
    }
}

}  // namespace excel::embedded
