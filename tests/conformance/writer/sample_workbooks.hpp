#pragma once

#include <excel/excel.hpp>

#include <filesystem>

// Builders of the sample workbooks the conformance tests check. Between them they use every
// feature of the embedded engine; each saves one file and leaves it open in the application.
namespace conformance {

// Cell values of every kind, 2-D array writes, rich text, defined names, a hidden sheet,
// a column insert and structure protection.
void WriteCellValuesWorkbook(excel::Application& app, const std::filesystem::path& file);

// Fonts, fills, borders, alignment, number formats and a changed palette colour.
void WriteFormattingWorkbook(excel::Application& app, const std::filesystem::path& file);

// Merges, column widths, row heights, whole-row and whole-column formats, gridlines.
void WriteLayoutWorkbook(excel::Application& app, const std::filesystem::path& file);

}  // namespace conformance
