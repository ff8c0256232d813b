#include "excel/embedded/document/workbook_document_conversion.hpp"

#include "excel/embedded/document/carried_formula_changes.hpp"
#include "excel/embedded/document/format_document_conversion.hpp"
#include "excel/embedded/document/rich_text_document_conversion.hpp"
#include "excel/embedded/document/shape_document_conversion.hpp"
#include "excel/embedded/document/sheet_list_document_conversion.hpp"
#include "excel/embedded/format/color_conversion.hpp"
#include "excel/embedded/format/palette.hpp"
#include "excel/embedded/format/workbook_colors.hpp"
#include "excel/embedded/model/geometry/geometry.hpp"
#include "excel/embedded/model/password_verifier.hpp"
#include "excel/embedded/text/text_entry.hpp"
#include "excel/embedded/text/utf8_text.hpp"

#include "ooxml/opc/carried_cell_moves.hpp"

#include <algorithm>
#include <cassert>
#include <ctime>
#include <map>
#include <memory>
#include <unordered_map>
#include <unordered_set>

namespace excel::embedded {

namespace {

constexpr uint32_t unmapped = UINT32_MAX;

// The indexed colours 0..7 of the file are fixed: Excel's standard first eight.
constexpr size_t fixedIndexedColors = 8;

// The file's colours are 0x00RRGGBB; the object model's RGB Longs are 0x00BBGGRR.
uint32_t FileRgb(uint32_t rgbLong) {
    return ArgbFromRgbLong(rgbLong) & 0xFFFFFFu;
}

// Numbers the strings cells use, in first-use order, so unused pool entries are not saved.
// Once closed, it only answers the numbers given: streamed rows are converted after the document's
// string list has moved on with the document.
class StringNumbering {
public:
    StringNumbering(const StringPool& pool, std::vector<ooxml::SharedString>& out) : pool_(pool), out_(&out) {}

    uint32_t Number(uint32_t poolId) {
        if (poolId >= numbers_.size()) {
            numbers_.resize(poolId + 1, unmapped);
        }
        if (numbers_[poolId] == unmapped) {
            assert(out_ != nullptr);
            numbers_[poolId] = static_cast<uint32_t>(out_->size());
            out_->push_back(DocumentText(pool_.Get(poolId)));
        }
        return numbers_[poolId];
    }
    uint32_t NumberText(const std::string& text) {
        const auto found = texts_.find(text);
        if (found != texts_.end()) {
            return found->second;
        }
        assert(out_ != nullptr);
        const auto number = static_cast<uint32_t>(out_->size());
        out_->push_back(ooxml::SharedString{text, {}});
        texts_.emplace(text, number);
        return number;
    }
    void Close() { out_ = nullptr; }

private:
    const StringPool& pool_;
    std::vector<ooxml::SharedString>* out_;
    std::vector<uint32_t> numbers_;
    std::unordered_map<std::string, uint32_t> texts_;
};

void ConvertColumns(const WorksheetModel& sheet, ooxml::SheetDocument& out) {
    for (const ColumnRun& run : sheet.Columns().Runs()) {
        const ColumnInfo& info = run.info;
        ooxml::ColumnRange range;
        range.first = static_cast<uint32_t>(run.first);
        range.last = static_cast<uint32_t>(run.last);
        if (info.HasWidth()) {
            range.width = info.fileWidth >= 0.0 ? info.fileWidth : FileColumnWidth(info.width);
            range.customWidth = info.customWidth;
        }
        if (info.format != 0) {
            range.format = info.format;
        }
        range.hidden = info.hidden || (info.HasWidth() && info.width == 0.0);
        range.outlineLevel = info.outlineLevel;
        range.collapsed = info.collapsed;
        out.columns.push_back(range);
    }
}

// Puts a value, a cell's own or the result an opened formula keeps, into the document's cell.
void ConvertValue(const Cell& value, StringNumbering& strings, ooxml::Cell& out) {
    switch (value.kind) {
        case CellKind::Blank:
        case CellKind::Formula:
        case CellKind::OpenedFormula:
            break;
        case CellKind::Number:
            out.type = ooxml::CellType::Number;
            out.number = value.number;
            break;
        case CellKind::Boolean:
            out.type = ooxml::CellType::Boolean;
            out.number = value.number;
            break;
        case CellKind::Text:
            out.type = ooxml::CellType::String;
            out.string = strings.Number(value.text);
            break;
        case CellKind::Error:
            out.type = ooxml::CellType::Error;
            out.string = strings.NumberText(ErrorTextFromNumber(value.error));
            break;
    }
}

// Adds an opened formula of the cell at row, column to the sheet's formulas with its result and,
// for an array formula, the block it fills.
// The formulas of converted cells, which the cells name by index.
struct FormulaList {
    std::vector<std::string>& texts;
    std::map<uint32_t, ooxml::CellBlock>& arrays;
};

uint32_t ConvertOpenedFormula(const OpenedFormula& formula, int32_t row, int32_t column, const StringPool& pool,
                              StringNumbering& strings, FormulaList formulas, ooxml::Cell& out) {
    const auto index = static_cast<uint32_t>(formulas.texts.size());
    formulas.texts.push_back(pool.Get(formula.text).text);
    ConvertValue(formula.result, strings, out);
    if (formula.IsArray()) {
        formulas.arrays.emplace(
            index, ooxml::CellBlock{static_cast<uint32_t>(row), static_cast<uint32_t>(column),
                                    static_cast<uint32_t>(std::min(row + formula.arrayRows - 1, MaxRow)),
                                    static_cast<uint32_t>(std::min(column + formula.arrayColumns - 1, MaxColumn))});
    }
    return index;
}

// The model's row as the document's, its cells' formulas added to formulas.
void ConvertRow(const RowData& row, const WorksheetModel& sheet, StringNumbering& strings, FormulaList formulas,
                ooxml::Row& out) {
    const StringPool& pool = sheet.Book().Strings();
    const OpenedFormulaTable& opened = sheet.Book().OpenedFormulas();
    out.index = static_cast<uint32_t>(row.index);
    out.height = row.HasCustomHeight() ? std::optional(row.height) : std::nullopt;
    out.customHeight = row.HasCustomHeight() && !row.fittedHeight;
    out.format = row.hasFormat ? std::optional(row.format) : std::nullopt;
    out.hidden = row.hidden;
    out.outlineLevel = row.outlineLevel;
    out.collapsed = row.collapsed;
    out.cells.clear();
    out.cells.reserve(row.cells.size());
    for (const Cell& cell : row.cells) {
        ooxml::Cell outCell;
        outCell.column = cell.column;
        outCell.format = cell.format;
        if (cell.kind == CellKind::Formula) {
            outCell.formula = static_cast<uint32_t>(formulas.texts.size());
            formulas.texts.push_back(pool.Get(cell.text).text);
        } else if (cell.kind == CellKind::OpenedFormula) {
            outCell.formula =
                ConvertOpenedFormula(opened.Get(cell.text), row.index, cell.column, pool, strings, formulas, outCell);
        } else {
            ConvertValue(cell, strings, outCell);
        }
        out.cells.push_back(outCell);
    }
}

// The sheet's rows, held by the document.
void ConvertRows(const WorksheetModel& sheet, StringNumbering& strings, ooxml::SheetDocument& out) {
    out.rows.reserve(sheet.Cells().Rows().size());
    for (const RowData& row : sheet.Cells().Rows()) {
        if (!row.IsBare()) {
            ConvertRow(row, sheet, strings, FormulaList{out.formulas, out.arrayFormulas}, out.rows.emplace_back());
        }
    }
}

// The sheet's rows, made one at a time each time the writer asks for them, so that saving holds
// no second copy of the cells. Their strings are numbered now, in the order a held conversion
// would number them.
void StreamRows(const WorksheetModel& sheet, const std::shared_ptr<StringNumbering>& strings,
                ooxml::SheetDocument& out) {
    std::vector<std::string> texts;
    std::map<uint32_t, ooxml::CellBlock> arrays;
    ooxml::Row scratch;
    for (const RowData& row : sheet.Cells().Rows()) {
        if (!row.IsBare()) {
            ConvertRow(row, sheet, *strings, FormulaList{texts, arrays}, scratch);
            out.streamedFormulas = out.streamedFormulas || !texts.empty();
            texts.clear();
            arrays.clear();
        }
    }
    out.rowStream = [&sheet, strings](const ooxml::RowVisitor& visit) {
        std::vector<std::string> formulas;
        std::map<uint32_t, ooxml::CellBlock> arrayFormulas;
        ooxml::Row row;
        for (const RowData& data : sheet.Cells().Rows()) {
            if (data.IsBare()) {
                continue;
            }
            formulas.clear();
            arrayFormulas.clear();
            ConvertRow(data, sheet, *strings, FormulaList{formulas, arrayFormulas}, row);
            visit(ooxml::RowView{row, formulas, arrayFormulas});
        }
    };
}

ooxml::SheetDocument ConvertSheet(const WorksheetModel& sheet, const std::shared_ptr<StringNumbering>& strings,
                                  RowDelivery rows) {
    const SheetSettings& settings = sheet.Settings();
    ooxml::SheetDocument out;
    out.name = settings.name;
    out.state = SheetStateFromVisibility(settings.visibility);
    out.showGridLines = settings.showGridlines;
    out.printGridLines = settings.printGridlines;
    out.showPageBreaks = settings.showPageBreaks;
    out.defaultRowHeight = settings.defaultRowHeight;
    out.activeCell = settings.activeCell;
    if (settings.fileStandardWidth) {
        out.defaultColumnWidth = settings.fileStandardWidth;
    } else if (settings.standardWidth != StandardColumnWidth) {
        out.defaultColumnWidth = FileColumnWidth(settings.standardWidth);
    }
    ConvertColumns(sheet, out);
    if (rows == RowDelivery::Streamed) {
        StreamRows(sheet, strings, out);
    } else {
        ConvertRows(sheet, *strings, out);
    }
    for (const CellBlock& merge : sheet.Merges()) {
        out.merges.push_back(ooxml::CellBlock{static_cast<uint32_t>(merge.top), static_cast<uint32_t>(merge.left),
                                              static_cast<uint32_t>(merge.bottom), static_cast<uint32_t>(merge.right)});
    }
    ConvertShapes(sheet, out);
    out.carried = sheet.Carried();
    return out;
}

// What the opened sheet carries follows its cells through every insertion and deletion since it
// was opened: the carried content is as the file had it, so all of them apply on each save.
void MoveCarriedCells(const WorksheetModel& sheet, ooxml::WorkbookDocument& document) {
    const std::vector<BlockShift>& shifts = sheet.ShiftsApplied();
    if (!sheet.Carried() || shifts.empty()) {
        return;
    }
    ooxml::MoveCarriedCells(document, document.sheets.back(), FileBlockMove(shifts));
}

// The document's strings as the workbook's StringPool ids, and its texts for error values.
struct DocumentStrings {
    std::vector<uint32_t> ids;
    const std::vector<ooxml::SharedString>& texts;
};

// Gives the cell the value the document's cell holds (its own, or a formula's result).
void LoadValue(const ooxml::Cell& in, const DocumentStrings& strings, Cell& cell) {
    if (in.type == ooxml::CellType::Number || in.type == ooxml::CellType::Boolean) {
        cell.kind = in.type == ooxml::CellType::Number ? CellKind::Number : CellKind::Boolean;
        cell.number = in.number;
    } else if (in.type == ooxml::CellType::String && in.string < strings.ids.size()) {
        cell.kind = CellKind::Text;
        cell.text = strings.ids[in.string];
    } else if (in.type == ooxml::CellType::Error && in.string < strings.texts.size()) {
        cell.kind = CellKind::Error;
        cell.error = ErrorNumberFromText(strings.texts[in.string].text).value_or(2042);
    }
}

// Gives the cell the document cell's formula. One with a cached result or an array block becomes
// an opened formula that keeps them; any other is stored as a formula set by the client is.
void LoadFormula(const ooxml::SheetDocument& sheet, const ooxml::Cell& in, const DocumentStrings& strings,
                 WorkbookModel& book, Cell& cell) {
    const uint32_t text = book.Strings().Intern(sheet.formulas[in.formula]);
    const auto array = sheet.arrayFormulas.find(in.formula);
    if (in.type == ooxml::CellType::Blank && array == sheet.arrayFormulas.end()) {
        cell.kind = CellKind::Formula;
        cell.text = text;
        return;
    }
    OpenedFormula formula;
    formula.text = text;
    LoadValue(in, strings, formula.result);
    if (array != sheet.arrayFormulas.end()) {
        formula.arrayRows = static_cast<int32_t>(array->second.lastRow - array->second.firstRow + 1);
        formula.arrayColumns = static_cast<int32_t>(array->second.lastColumn - array->second.firstColumn + 1);
    }
    cell.kind = CellKind::OpenedFormula;
    cell.text = book.OpenedFormulas().Add(formula);
}

void LoadSheet(WorksheetModel& sheet, const ooxml::SheetDocument& in, const std::vector<uint32_t>& formatIds,
               const DocumentStrings& strings) {
    SheetSettings& settings = sheet.Settings();
    settings.visibility = VisibilityFromSheetState(in.state);
    settings.showGridlines = in.showGridLines;
    settings.printGridlines = in.printGridLines;
    settings.showPageBreaks = in.showPageBreaks;
    settings.defaultRowHeight = in.defaultRowHeight;
    if (in.defaultColumnWidth) {
        settings.standardWidth = ColumnWidthFromFile(*in.defaultColumnWidth);
        settings.fileStandardWidth = in.defaultColumnWidth;
    }
    settings.activeCell = in.activeCell;
    auto formatId = [&](uint32_t index) { return index < formatIds.size() ? formatIds[index] : 0u; };
    for (const ooxml::ColumnRange& range : in.columns) {
        const auto last = static_cast<int32_t>(std::min<uint32_t>(range.last, MaxColumn));
        sheet.Columns().Update(static_cast<int32_t>(range.first), last, [&](ColumnInfo& info) {
            if (range.width) {
                info.width = ColumnWidthFromFile(*range.width);
                info.fileWidth = *range.width;
                info.customWidth = range.customWidth;
            }
            info.format = range.format ? formatId(*range.format) : 0;
            info.hidden = range.hidden;
            info.outlineLevel = range.outlineLevel;
            info.collapsed = range.collapsed;
        });
    }
    auto& rows = sheet.Cells().Rows();
    rows.reserve(in.rows.size());
    for (const ooxml::Row& inRow : in.rows) {
        RowData& row = sheet.Cells().EnsureRow(static_cast<int32_t>(inRow.index));
        row.height = inRow.height.value_or(-1.0);
        row.fittedHeight = inRow.height && !inRow.customHeight;
        row.hasFormat = inRow.format.has_value();
        row.format = inRow.format ? formatId(*inRow.format) : 0;
        row.hidden = inRow.hidden;
        row.outlineLevel = inRow.outlineLevel;
        row.collapsed = inRow.collapsed;
        row.cells.reserve(inRow.cells.size());
        for (const ooxml::Cell& inCell : inRow.cells) {
            Cell cell = Cell::Blank(static_cast<int32_t>(inCell.column), formatId(inCell.format));
            if (inCell.formula != ooxml::NoFormula && inCell.formula < in.formulas.size()) {
                LoadFormula(in, inCell, strings, sheet.Book(), cell);
            } else {
                LoadValue(inCell, strings, cell);
            }
            row.cells.push_back(cell);
        }
    }
    sheet.RowHeightsChanged();
    for (const ooxml::CellBlock& merge : in.merges) {
        sheet.Merges().push_back(CellBlock{static_cast<int32_t>(merge.firstRow),
                                           static_cast<int32_t>(merge.firstColumn), static_cast<int32_t>(merge.lastRow),
                                           static_cast<int32_t>(merge.lastColumn)});
    }
    LoadShapes(sheet, in);
    if (in.carried) {
        sheet.Shapes().ReserveIdsThrough(in.carried->highestShapeId);
    }
    sheet.SetCarried(in.carried);
}

}  // namespace

ooxml::WorkbookDocument ToDocument(const WorkbookModel& book, const std::string& author, RowDelivery rows) {
    ooxml::WorkbookDocument document;
    const std::vector<CellFormat>& formats = book.Formats().All();
    document.formats.resize(formats.size());
    std::transform(formats.begin(), formats.end(), document.formats.begin(), DocumentCellFormat);
    const auto strings = std::make_shared<StringNumbering>(book.Strings(), document.strings);
    document.carried = CarriedInSheetOrder(book);
    for (const auto& sheet : book.Sheets()) {
        document.sheets.push_back(ConvertSheet(*sheet, strings, rows));
        MoveCarriedCells(*sheet, document);
        document.sheets.back().tabSelected = sheet.get() == book.ActiveSheet();
        if (sheet.get() == book.ActiveSheet()) {
            document.activeSheet = static_cast<uint32_t>(document.sheets.size() - 1);
        }
    }
    ChangeCarriedFormulas(book, document);
    for (const auto& name : book.Names()) {
        ooxml::DefinedName out{name->name, name->formula, std::nullopt, !name->visible, name->fileAttributes};
        if (name->localSheet) {
            out.localSheet = static_cast<uint32_t>(book.SheetPosition(*name->localSheet));
        }
        document.names.push_back(out);
    }
    // A file that listed its palette gets it listed again, even unchanged from Excel's.
    if (book.Palette() != DefaultPalette() || (document.carried && document.carried->styles.listsIndexedColors)) {
        for (size_t i = 0; i < fixedIndexedColors; ++i) {
            document.palette.push_back(FileRgb(DefaultPalette()[i]));
        }
        for (uint32_t color : book.Palette()) {
            document.palette.push_back(FileRgb(color));
        }
    }
    std::transform(book.ThemeColors().begin(), book.ThemeColors().end(), document.themeColors.begin(), FileRgb);
    document.date1904 = book.Date1904();
    document.lockStructure = book.ProtectStructure();
    document.passwordFromFile = book.PasswordFromFile();
    if (!book.PasswordFromFile() && !book.Password().empty()) {
        document.passwordVerifier = LegacyPasswordVerifier(book.Password());
    }
    document.lockWindows = book.ProtectWindows();
    document.properties.creator = author;
    document.properties.lastModifiedBy = author;
    document.properties.created = std::time(nullptr);
    document.properties.modified = document.properties.created;
    strings->Close();
    return document;
}

void LoadDocument(WorkbookModel& book, const ooxml::WorkbookDocument& document) {
    std::vector<uint32_t> formatIds;
    formatIds.reserve(document.formats.size());
    for (const ooxml::CellFormat& format : document.formats) {
        formatIds.push_back(book.Formats().Intern(CellFormatFromDocument(format)));
    }
    DocumentStrings strings{{}, document.strings};
    strings.ids.reserve(document.strings.size());
    for (const ooxml::SharedString& text : document.strings) {
        strings.ids.push_back(book.Strings().Add(TextFromDocument(text)));
    }
    for (const ooxml::SheetDocument& sheet : document.sheets) {
        LoadSheet(*book.AppendSheet(sheet.name), sheet, formatIds, strings);
    }
    if (document.activeSheet < book.Sheets().size() &&
        book.Sheets()[document.activeSheet]->Settings().visibility == -1) {
        book.ActivateSheet(*book.Sheets()[document.activeSheet]);
    }
    std::vector<std::shared_ptr<DefinedNameModel>> names;
    // A name defined twice in one scope (files from other programs have them) keeps its first
    // definition: saved twice, it would make Excel repair the file. Hashed, so that a file of
    // 100,000 names opens in linear time.
    std::map<const WorksheetModel*, std::unordered_set<std::u32string>> namesByScope;
    for (const ooxml::DefinedName& name : document.names) {
        std::shared_ptr<WorksheetModel> local;
        if (name.localSheet && *name.localSheet < book.Sheets().size()) {
            local = book.Sheets()[*name.localSheet];
        }
        if (!namesByScope[local.get()].insert(FoldedCodePoints(name.name)).second) {
            continue;
        }
        names.push_back(std::make_shared<DefinedNameModel>(
            DefinedNameModel{name.name, name.formula, local, !name.hidden, false, name.otherAttributes}));
    }
    book.AddOpenedNames(std::move(names));
    // The colours a file lists from index 8 on replace the palette's; the rest keep Excel's standard ones.
    for (size_t i = fixedIndexedColors; i < document.palette.size() && i - fixedIndexedColors < book.Palette().size();
         ++i) {
        if (const std::optional<uint32_t>& rgb = document.palette[i]) {
            book.Palette()[i - fixedIndexedColors] = RgbLongFromArgb(*rgb);
        }
    }
    book.SetDate1904(document.date1904);
    if (document.themeFromFile) {
        ThemeColors theme{};
        std::transform(document.themeColors.begin(), document.themeColors.end(), theme.begin(), RgbLongFromArgb);
        book.SetThemeColors(theme);
    }
    if (document.passwordFromFile) {
        book.ProtectWithFilePassword(document.lockStructure, document.lockWindows, document.passwordVerifier);
    } else {
        book.Protect("", document.lockStructure, document.lockWindows);
    }
    if (document.carried) {
        LoadOtherSheets(book, *document.carried);
    }
    book.SetCarried(document.carried);
}

}  // namespace excel::embedded
