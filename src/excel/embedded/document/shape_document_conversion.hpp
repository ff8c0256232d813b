#pragma once

#include "excel/embedded/model/worksheet_model.hpp"
#include "ooxml/document/workbook_document.hpp"

namespace excel::embedded {

// A sheet's text boxes and comments as the drawing, comments and legacy drawing parts store
// them, and back. Saved and opened again, every text box and comment keeps its text, fonts,
// colours, margins, sizing and place.
void ConvertShapes(const WorksheetModel& sheet, ooxml::SheetDocument& out);
// A text box (of the sheet, or of a chart on it) as a drawing stores it.
ooxml::DrawingShape DrawingShapeOf(const WorksheetModel& sheet, const ShapeModel& shape);
// An opened text box, not yet placed.
std::shared_ptr<ShapeModel> TextBoxFromDocument(const ooxml::DrawingShape& in);
ShapeColor ShapeColorFromDocument(const ooxml::Color& color);
// Loads them into a sheet whose rows and columns are loaded already.
void LoadShapes(WorksheetModel& sheet, const ooxml::SheetDocument& in);

}  // namespace excel::embedded
