#pragma once

#include "excel/embedded/format/cell_format.hpp"
#include "ooxml/document/cell_format.hpp"

namespace excel::embedded {

// The engine's formats in the file's terms and back. The file names patterns, line styles,
// alignments and underlines by the words of its schema; a word the engine does not know reads as
// the default.
ooxml::Color DocumentColor(const FormatColor& color);
FormatColor ColorFromDocument(const ooxml::Color& color);

ooxml::Font DocumentFont(const FontFormat& font);
FontFormat FontFromDocument(const ooxml::Font& font);

ooxml::CellFormat DocumentCellFormat(const CellFormat& format);
CellFormat CellFormatFromDocument(const ooxml::CellFormat& format);

}  // namespace excel::embedded
