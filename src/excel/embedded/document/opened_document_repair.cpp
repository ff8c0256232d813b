#include "excel/embedded/document/opened_document_repair.hpp"

#include "excel/embedded/document/format_document_conversion.hpp"
#include "excel/embedded/format/format_table.hpp"
#include "excel/embedded/model/cells/cell_limits.hpp"
#include "excel/embedded/model/names/defined_name_rules.hpp"
#include "excel/embedded/model/names/sheet_name_rules.hpp"
#include "excel/embedded/text/utf8_text.hpp"

#include <algorithm>
#include <string_view>
#include <unordered_set>
#include <vector>

namespace excel::embedded {

namespace {

// The names of the worksheets and of the sheets kept whole, in the workbook's order.
std::vector<std::string_view> SheetNames(const ooxml::WorkbookDocument& document) {
    std::vector<std::string_view> names;
    for (const ooxml::SheetDocument& sheet : document.sheets) {
        names.push_back(sheet.name);
    }
    if (document.carried) {
        for (const ooxml::CarriedSheet& sheet : document.carried->sheets) {
            names.push_back(sheet.name);
        }
    }
    return names;
}

std::optional<std::string> CheckSheetNames(const ooxml::WorkbookDocument& document) {
    std::unordered_set<std::u32string> seen;
    for (const std::string_view name : SheetNames(document)) {
        if (!IsValidSheetName(name) || WithMalformedBytesReplaced(name) != name) {
            return "The sheet name \"" + std::string(name) + "\" is not one Excel allows";
        }
        if (!seen.insert(FoldedCodePoints(name)).second) {
            return "The sheet name \"" + std::string(name) + "\" is used twice";
        }
    }
    return std::nullopt;
}

std::optional<std::string> CheckTexts(const ooxml::WorkbookDocument& document) {
    for (const ooxml::SharedString& string : document.strings) {
        if (Utf16Length(string.text) > kMaxCellCharacters) {
            return "A text of the workbook is longer than " + std::to_string(kMaxCellCharacters) + " characters";
        }
    }
    for (const ooxml::SheetDocument& sheet : document.sheets) {
        for (const std::string& formula : sheet.formulas) {
            if (Utf16Length(formula) > kMaxFormulaCharacters) {
                return "A formula on the sheet \"" + sheet.name + "\" is longer than " +
                       std::to_string(kMaxFormulaCharacters) + " characters";
            }
        }
    }
    return std::nullopt;
}

// The engine keeps each distinct format once, so a file listing the same format many times opens;
// more distinct formats than Excel allows could never be saved whole.
std::optional<std::string> CheckCellFormats(const ooxml::WorkbookDocument& document) {
    if (document.formats.size() <= kMaxCellFormats) {
        return std::nullopt;
    }
    std::unordered_set<CellFormat, CellFormatHash> distinct;
    for (const ooxml::CellFormat& format : document.formats) {
        distinct.insert(CellFormatFromDocument(format));
    }
    if (distinct.size() <= kMaxCellFormats) {
        return std::nullopt;
    }
    return "The workbook holds " + std::to_string(distinct.size()) + " different cell formats; Excel allows " +
           std::to_string(kMaxCellFormats);
}

void ShowASheetWhenAllAreHidden(ooxml::WorkbookDocument& document) {
    const auto visible = [](const std::string& state) { return state == "visible"; };
    if (std::any_of(document.sheets.begin(), document.sheets.end(),
                    [&](const ooxml::SheetDocument& sheet) { return visible(sheet.state); })) {
        return;
    }
    if (document.carried && std::any_of(document.carried->sheets.begin(), document.carried->sheets.end(),
                                        [&](const ooxml::CarriedSheet& sheet) { return visible(sheet.state); })) {
        return;
    }
    if (!document.sheets.empty()) {
        document.sheets.front().state = "visible";
    }
}

bool Overlap(const ooxml::CellBlock& a, const ooxml::CellBlock& b) {
    return a.firstRow <= b.lastRow && b.firstRow <= a.lastRow && a.firstColumn <= b.lastColumn &&
           b.firstColumn <= a.lastColumn;
}

// Keeps each merged block that overlaps none kept before it, taking them from the top (in the
// file's order within a row), so only the kept blocks still open at a block's first row need
// comparing with it.
void DropOverlappingMerges(std::vector<ooxml::CellBlock>& merges) {
    std::vector<size_t> order(merges.size());
    for (size_t index = 0; index < order.size(); ++index) {
        order[index] = index;
    }
    std::stable_sort(order.begin(), order.end(),
                     [&merges](size_t a, size_t b) { return merges[a].firstRow < merges[b].firstRow; });
    std::vector<bool> kept(merges.size(), false);
    std::vector<size_t> open;  // kept blocks that reach the current row
    for (const size_t index : order) {
        const ooxml::CellBlock& block = merges[index];
        std::erase_if(open, [&](size_t other) { return merges[other].lastRow < block.firstRow; });
        const bool overlaps =
            std::any_of(open.begin(), open.end(), [&](size_t other) { return Overlap(merges[other], block); });
        if (!overlaps) {
            kept[index] = true;
            open.push_back(index);
        }
    }
    size_t next = 0;
    for (size_t index = 0; index < merges.size(); ++index) {
        if (kept[index]) {
            merges[next++] = merges[index];
        }
    }
    merges.resize(next);
}

void DropEmptyRuns(std::vector<ooxml::SharedString>& strings) {
    for (ooxml::SharedString& string : strings) {
        std::erase_if(string.runs, [](const ooxml::TextRun& run) { return run.text.empty(); });
    }
}

void DropInvalidNames(std::vector<ooxml::DefinedName>& names) {
    std::erase_if(names, [](const ooxml::DefinedName& name) { return !IsValidDefinedName(name.name); });
}

}  // namespace

// A name that is no valid UTF-8 would be saved with U+FFFD in place of its stray bytes, and so
// would no longer be the name the workbook's formulas use: the names are read as they will be
// saved.
void ReplaceMalformedBytes(ooxml::WorkbookDocument& document) {
    for (ooxml::SheetDocument& sheet : document.sheets) {
        sheet.name = WithMalformedBytesReplaced(sheet.name);
    }
    for (ooxml::DefinedName& name : document.names) {
        name.name = WithMalformedBytesReplaced(name.name);
    }
}

std::optional<std::string> RepairOpenedDocument(ooxml::WorkbookDocument& document) {
    ReplaceMalformedBytes(document);
    if (std::optional<std::string> refusal = CheckSheetNames(document)) {
        return refusal;
    }
    if (std::optional<std::string> refusal = CheckTexts(document)) {
        return refusal;
    }
    if (std::optional<std::string> refusal = CheckCellFormats(document)) {
        return refusal;
    }
    ShowASheetWhenAllAreHidden(document);
    for (ooxml::SheetDocument& sheet : document.sheets) {
        DropOverlappingMerges(sheet.merges);
    }
    DropEmptyRuns(document.strings);
    DropInvalidNames(document.names);
    return std::nullopt;
}

}  // namespace excel::embedded
