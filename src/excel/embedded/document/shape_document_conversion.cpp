#include "excel/embedded/document/shape_document_conversion.hpp"

#include "excel/embedded/document/chart_document_conversion.hpp"
#include "excel/embedded/document/format_document_conversion.hpp"
#include "excel/embedded/document/rich_text_document_conversion.hpp"
#include "excel/embedded/document/word_table.hpp"
#include "excel/embedded/format/color_conversion.hpp"
#include "excel/embedded/model/geometry/geometry.hpp"
#include "excel/embedded/model/shapes/cell_comments.hpp"
#include "excel/embedded/model/shapes/shape_placement.hpp"
#include "excel/embedded/model/workbook_model.hpp"

#include <algorithm>
#include <array>
#include <cmath>
#include <string_view>
#include <utility>

namespace excel::embedded {

namespace {

constexpr double EmuPerPoint = 12700.0;

int64_t Emu(double points) {
    return std::llround(points * EmuPerPoint);
}

double PointsFromEmu(int64_t emu) {
    return static_cast<double>(emu) / EmuPerPoint;
}

// A procedure of the workbook's own standard modules is "[0]!Name" in the file ([0] being the
// workbook itself); the object model shows the bare name. A qualified name ("Sheet1.Name", or one
// of another workbook with its "!") is written as it is.
constexpr std::string_view OwnWorkbookMacro = "[0]!";

std::string MacroOfOnAction(const std::string& onAction) {
    if (onAction.empty() || onAction.find_first_of("!.") != std::string::npos) {
        return onAction;
    }
    return std::string(OwnWorkbookMacro) + onAction;
}

std::string OnActionOfMacro(const std::string& macro) {
    return macro.starts_with(OwnWorkbookMacro) ? macro.substr(OwnWorkbookMacro.size()) : macro;
}

uint32_t Pixels(double points) {
    return static_cast<uint32_t>(std::lround(points / PointsPerPixel));
}

constexpr WordTable<5> HorizontalAlignments{{{xlHAlignLeft, "l"},
                                             {xlHAlignCenter, "ctr"},
                                             {xlHAlignRight, "r"},
                                             {xlHAlignJustify, "just"},
                                             {xlHAlignDistributed, "dist"}}};
constexpr WordTable<5> VerticalAnchors{{{xlVAlignTop, "t"},
                                        {xlVAlignCenter, "ctr"},
                                        {xlVAlignBottom, "b"},
                                        {xlVAlignJustify, "just"},
                                        {xlVAlignDistributed, "dist"}}};
constexpr WordTable<3> AnchorKinds{{{xlMoveAndSize, "twoCell"}, {xlMove, "oneCell"}, {xlFreeFloating, "absolute"}}};

CellPoint CellPointOf(const ooxml::CellAnchor& anchor) {
    return CellPoint{static_cast<int32_t>(anchor.column + 1), PointsFromEmu(anchor.columnOffset),
                     static_cast<int32_t>(anchor.row + 1), PointsFromEmu(anchor.rowOffset)};
}

ooxml::CellAnchor AnchorOf(const CellPoint& point) {
    return ooxml::CellAnchor{static_cast<uint32_t>(point.column - 1), Emu(point.columnOffset),
                             static_cast<uint32_t>(point.row - 1), Emu(point.rowOffset)};
}

// A palette colour as the RGB it shows, keeping its tint: drawings have no palette.
FormatColor WithoutPalette(const FormatColor& color, const WorkbookColors& colors) {
    if (color.kind != FormatColor::Kind::Indexed) {
        return color;
    }
    return FormatColor{FormatColor::Kind::Rgb, ArgbFromRgbLong(RgbOf(color, colors, 0)), 0, color.tint};
}

// The text with a font on every run: the files have no frame font to fall back on. Runs of a
// drawing's text show palette colours by their RGB; a comment's runs keep them.
ooxml::SharedString SpelledOut(const ShapeText& frame, const WorkbookColors* drawingColors) {
    RichText text = frame.text;
    if (text.runs.empty() && !text.text.empty()) {
        text.runs.push_back(TextRun{text.text, std::nullopt});
    }
    for (TextRun& run : text.runs) {
        run.font = run.font.value_or(frame.font);
        if (drawingColors) {
            run.font->color = WithoutPalette(run.font->color, *drawingColors);
        }
    }
    return DocumentText(text);
}

// Takes a file's text; a font shared by every run becomes the frame's font.
void LoadText(ShapeText& frame, const ooxml::SharedString& text) {
    frame.text = TextFromDocument(text);
    const std::vector<TextRun>& runs = frame.text.runs;
    if (runs.empty() || !runs.front().font) {
        return;
    }
    const FontFormat first = *runs.front().font;
    const bool shared = std::all_of(runs.begin(), runs.end(), [&](const TextRun& run) { return run.font == first; });
    if (shared) {
        frame.font = first;
        frame.text.runs.clear();
    }
}

// 0x00BBGGRR <-> the legacy drawing's 0x00RRGGBB.
uint32_t RrggbbOf(uint32_t rgbLong) {
    return ArgbFromRgbLong(rgbLong) & 0xFFFFFFu;
}

int32_t RgbLongOf(uint32_t rrggbb) {
    return static_cast<int32_t>(RgbLongFromArgb(rrggbb));
}

struct Corners {
    ShapeBounds bounds;
    CellPoint from;
    CellPoint to;
};

// The corners a shape that follows cells is held by are its own, as its file or its last move
// gave them; those of a free one are the cells under it.
Corners CornersOf(const WorksheetModel& sheet, const ShapeModel& shape) {
    const ShapeBounds bounds = BoundsOf(sheet, shape);
    Corners corners{bounds, CellPointAt(sheet, bounds.left, bounds.top),
                    CellPointAt(sheet, bounds.left + bounds.width, bounds.top + bounds.height)};
    if (shape.placement != xlFreeFloating) {
        corners.from = shape.from;
    }
    if (shape.placement == xlMoveAndSize) {
        corners.to = shape.to;
    }
    return corners;
}

// What every drawing object has: its id and name, its anchor and place, its macro and visibility.
ooxml::DrawingShape AnchoredObjectOf(const ShapeModel& shape, const Corners& corners) {
    ooxml::DrawingShape out;
    out.id = shape.id;
    out.name = shape.name;
    out.editAs = std::string(WordOf(AnchorKinds, shape.placement));
    out.from = AnchorOf(corners.from);
    out.to = AnchorOf(corners.to);
    out.x = Emu(corners.bounds.left);
    out.y = Emu(corners.bounds.top);
    out.width = Emu(corners.bounds.width);
    out.height = Emu(corners.bounds.height);
    out.macro = MacroOfOnAction(shape.onAction);
    out.hidden = !shape.visible;
    return out;
}

ooxml::DrawingShape TextBoxOf(const WorksheetModel& sheet, const ShapeModel& shape) {
    const WorkbookColors& colors = sheet.Book().Colors();
    const TextMargins margins = shape.text.Margins();
    ooxml::DrawingShape out = AnchoredObjectOf(shape, CornersOf(sheet, shape));
    if (shape.fill.visible) {
        out.fill = DocumentColor(WithoutPalette(shape.fill.color.color, colors));
    }
    out.fillTransparency = shape.fill.transparency;
    if (shape.line.visible) {
        out.line = DocumentColor(WithoutPalette(shape.line.color.color, colors));
    }
    out.lineWidth = Emu(shape.line.weight);
    out.insetLeft = Emu(margins.left);
    out.insetTop = Emu(margins.top);
    out.insetRight = Emu(margins.right);
    out.insetBottom = Emu(margins.bottom);
    out.wrap = shape.text.wordWrap;
    out.autoFit = shape.text.autoSize;
    out.verticalAnchor = std::string(WordOf(VerticalAnchors, shape.text.verticalAlignment));
    out.alignment = std::string(WordOf(HorizontalAlignments, shape.text.horizontalAlignment));
    out.text = SpelledOut(shape.text, &colors);
    return out;
}

// A chart's frame: the anchor and the chart part it shows.
ooxml::DrawingShape ChartFrameOf(const WorksheetModel& sheet, const ShapeModel& shape) {
    const Corners corners = CornersOf(sheet, shape);
    ooxml::DrawingShape out = AnchoredObjectOf(shape, corners);
    out.chart = std::make_shared<ooxml::ChartDocument>(
        DocumentChart(sheet, *shape.chart, corners.bounds.width, corners.bounds.height));
    return out;
}

ooxml::CellComment CommentOf(const WorksheetModel& sheet, const ShapeModel& shape) {
    const Corners corners = CornersOf(sheet, shape);
    const WorkbookColors& colors = sheet.Book().Colors();
    ooxml::CellComment out;
    out.row = static_cast<uint32_t>(shape.comment->row);
    out.column = static_cast<uint32_t>(shape.comment->column);
    out.author = shape.comment->author;
    out.text = SpelledOut(shape.text, nullptr);
    out.visible = shape.visible;
    out.left = corners.bounds.left;
    out.top = corners.bounds.top;
    out.width = corners.bounds.width;
    out.height = corners.bounds.height;
    out.anchor = ooxml::LegacyAnchor{static_cast<uint32_t>(corners.from.column - 1), Pixels(corners.from.columnOffset),
                                     static_cast<uint32_t>(corners.from.row - 1),    Pixels(corners.from.rowOffset),
                                     static_cast<uint32_t>(corners.to.column - 1),   Pixels(corners.to.columnOffset),
                                     static_cast<uint32_t>(corners.to.row - 1),      Pixels(corners.to.rowOffset)};
    out.moveWithCells = shape.placement != xlFreeFloating;
    out.sizeWithCells = shape.placement == xlMoveAndSize;
    out.fillRgb = RrggbbOf(RgbOf(shape.fill.color, colors));
    out.lineRgb = RrggbbOf(RgbOf(shape.line.color, colors));
    out.lineWeight = shape.line.weight;
    if (!shape.text.autoMargins) {
        const TextMargins& margins = shape.text.margins;
        out.insets = std::array<double, 4>{margins.left, margins.top, margins.right, margins.bottom};
    }
    return out;
}

// Places an opened drawing object by its anchor. Excel places an object that follows cells by the
// cells of its anchor; the transform is where its writer worked out that they were, with row
// heights and column widths of its own. A chart's frame has no transform: its anchor's cells say
// where it is, whatever its placement.
void PlaceOpened(WorksheetModel& sheet, ShapeModel& shape, const ooxml::DrawingShape& in) {
    const bool ordered = in.to.row > in.from.row || (in.to.row == in.from.row && in.to.rowOffset >= in.from.rowOffset);
    ShapeBounds bounds{PointsFromEmu(in.x), PointsFromEmu(in.y), PointsFromEmu(in.width), PointsFromEmu(in.height)};
    if (in.chart && ordered) {
        ShapeModel byCells;
        byCells.from = CellPointOf(in.from);
        byCells.to = CellPointOf(in.to);
        bounds = BoundsOf(sheet, byCells);
    }
    Place(sheet, shape, bounds);
    if (shape.placement == xlMove || (shape.placement == xlMoveAndSize && ordered)) {
        shape.from = CellPointOf(in.from);
        if (shape.placement == xlMoveAndSize) {
            shape.to = CellPointOf(in.to);
        }
    }
}

// An opened drawing object of the type with what every one has, not yet placed.
std::shared_ptr<ShapeModel> AnchoredObjectFromDocument(const ooxml::DrawingShape& in, int32_t type) {
    auto shape = std::make_shared<ShapeModel>();
    shape->id = in.id;
    shape->name = in.name;
    shape->type = type;
    shape->placement = ConstantOf(AnchorKinds, in.editAs);
    shape->visible = !in.hidden;
    shape->onAction = OnActionOfMacro(in.macro);
    return shape;
}

void LoadChartFrame(WorksheetModel& sheet, const ooxml::DrawingShape& in) {
    auto shape = AnchoredObjectFromDocument(in, msoChart);
    PlaceOpened(sheet, *shape, in);
    const ShapeBounds bounds = BoundsOf(sheet, *shape);
    shape->chart = ChartFromDocument(in.chart, bounds.width, bounds.height);
    sheet.Shapes().AddOpened(std::move(shape));
}

void LoadTextBox(WorksheetModel& sheet, const ooxml::DrawingShape& in) {
    auto shape = TextBoxFromDocument(in);
    PlaceOpened(sheet, *shape, in);
    sheet.Shapes().AddOpened(std::move(shape));
}

void LoadComment(WorksheetModel& sheet, const ooxml::CellComment& in) {
    auto shape = AddCellComment(sheet, static_cast<int32_t>(in.row), static_cast<int32_t>(in.column), in.author, "");
    LoadText(shape->text, in.text);
    shape->visible = in.visible;
    shape->placement = !in.moveWithCells ? xlFreeFloating : in.sizeWithCells ? xlMoveAndSize : xlMove;
    shape->fill.color = ShapeColorFromRgb(RgbLongOf(in.fillRgb));
    shape->line.color = ShapeColorFromRgb(RgbLongOf(in.lineRgb));
    shape->line.weight = in.lineWeight;
    if (in.insets) {
        const auto& [left, top, right, bottom] = *in.insets;
        shape->text.autoMargins = false;
        shape->text.margins = TextMargins{left, top, right, bottom};
    }
    if (in.hasShape) {
        Place(sheet, *shape, ShapeBounds{in.left, in.top, in.width, in.height});
    }
}

}  // namespace

ShapeColor ShapeColorFromDocument(const ooxml::Color& color) {
    if (color.kind == ooxml::Color::Kind::Theme && color.index >= 0 && color.index < 12) {
        return ShapeColorFromThemeIndex(color.index, color.tint);
    }
    if (color.kind == ooxml::Color::Kind::Rgb) {
        return ShapeColor{ColorFromDocument(color), msoNotThemeColor};
    }
    return ShapeColorFromRgb(0);
}

std::shared_ptr<ShapeModel> TextBoxFromDocument(const ooxml::DrawingShape& in) {
    auto shape = AnchoredObjectFromDocument(in, msoTextBox);
    shape->fill.visible = in.fill.has_value();
    shape->fill.color = in.fill ? ShapeColorFromDocument(*in.fill) : ShapeColorFromRgb(0xFFFFFF);
    shape->fill.transparency = in.fillTransparency;
    shape->line.visible = in.line.has_value();
    shape->line.color = in.line ? ShapeColorFromDocument(*in.line) : ShapeColorFromRgb(0);
    shape->line.weight = PointsFromEmu(in.lineWidth);
    ShapeText& text = shape->text;
    text.margins = TextMargins{PointsFromEmu(in.insetLeft), PointsFromEmu(in.insetTop), PointsFromEmu(in.insetRight),
                               PointsFromEmu(in.insetBottom)};
    text.autoMargins = text.margins == TextMargins{};
    text.wordWrap = in.wrap;
    text.autoSize = in.autoFit;
    text.verticalAlignment = ConstantOf(VerticalAnchors, in.verticalAnchor);
    text.horizontalAlignment = ConstantOf(HorizontalAlignments, in.alignment);
    LoadText(text, in.text);
    return shape;
}

ooxml::DrawingShape DrawingShapeOf(const WorksheetModel& sheet, const ShapeModel& shape) {
    return TextBoxOf(sheet, shape);
}

void ConvertShapes(const WorksheetModel& sheet, ooxml::SheetDocument& out) {
    for (const auto& shape : sheet.Shapes().All()) {
        if (shape->comment) {
            out.comments.push_back(CommentOf(sheet, *shape));
        } else if (shape->chart) {
            out.shapes.push_back(ChartFrameOf(sheet, *shape));
        } else {
            out.shapes.push_back(TextBoxOf(sheet, *shape));
        }
    }
    std::sort(out.comments.begin(), out.comments.end(),
              [](const auto& a, const auto& b) { return std::pair(a.row, a.column) < std::pair(b.row, b.column); });
}

void LoadShapes(WorksheetModel& sheet, const ooxml::SheetDocument& in) {
    for (const ooxml::DrawingShape& shape : in.shapes) {
        if (shape.chart) {
            LoadChartFrame(sheet, shape);
        } else {
            LoadTextBox(sheet, shape);
        }
    }
    for (const ooxml::CellComment& comment : in.comments) {
        LoadComment(sheet, comment);
    }
}

}  // namespace excel::embedded
