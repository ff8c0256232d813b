#include "ooxml/worksheet/worksheet_reader.hpp"

#include "ooxml/carried/carried_attributes.hpp"
#include "ooxml/carried/carried_element_collector.hpp"
#include "ooxml/package_error.hpp"
#include "ooxml/reference/cell_reference_reader.hpp"
#include "ooxml/worksheet/outline_level.hpp"
#include "ooxml/worksheet/sheet_data_reader.hpp"
#include "ooxml/worksheet/worksheet_element_order.hpp"
#include "ooxml/xml/xml_node_access.hpp"
#include "ooxml/xml/xml_part_parser.hpp"

#include <algorithm>
#include <iterator>
#include <utility>

namespace ooxml {

namespace {

constexpr double MaxColumnWidth = 255.0;

// The elements around the cells that the reader takes settings from.
constexpr std::string_view SettingElements[] = {"sheetViews",   "sheetFormatPr", "cols",         "mergeCells",
                                                "printOptions", "drawing",       "legacyDrawing"};
// Elements the writer makes anew from the cells.
constexpr std::string_view DerivedElements[] = {"dimension"};

template <std::size_t N>
bool Lists(const std::string_view (&names)[N], std::string_view name) {
    return std::find(std::begin(names), std::end(names), name) != std::end(names);
}

// Reads the sheet's settings from a tree of the elements that hold them; the cells are read apart.
class WorksheetSettingsReader {
public:
    WorksheetSettingsReader(const WorksheetContext& context, SheetDocument& sheet, CarriedWorksheet& carried)
        : context_(context), sheet_(sheet), carried_(carried) {}

    SheetDrawingReferences Read(pugi::xml_node worksheet) {
        SheetDrawingReferences drawings;
        for (pugi::xml_node child = worksheet.first_child(); child; child = child.next_sibling()) {
            const std::string_view name = LocalName(child);
            if (name == "sheetViews") {
                ReadSheetView(FirstChild(child, "sheetView"));
            } else if (name == "sheetFormatPr") {
                carried_.sheetFormatAttributes = AttributesExcept(child, {"defaultColWidth", "defaultRowHeight"});
                sheet_.defaultColumnWidth = AttributeDouble(child, "defaultColWidth");
                sheet_.defaultRowHeight = AttributeDouble(child, "defaultRowHeight").value_or(sheet_.defaultRowHeight);
            } else if (name == "cols") {
                ForEachChild(child, "col", [&](pugi::xml_node col) { ReadColumnRange(col); });
            } else if (name == "mergeCells") {
                ForEachChild(child, "mergeCell", [&](pugi::xml_node merge) { ReadMerge(merge); });
            } else if (name == "printOptions") {
                sheet_.printGridLines = AttributeBool(child, "gridLines", false);
                carried_.printOptionsAttributes = AttributesExcept(child, {"gridLines"});
            } else if (name == "drawing") {
                drawings.drawing = AttributeText(child, "id");
            } else if (name == "legacyDrawing") {
                drawings.legacyDrawing = AttributeText(child, "id");
            }
        }
        SortUnique(sheet_.columns, [](const ColumnRange& range) { return range.first; });
        RemoveColumnOverlaps();
        return drawings;
    }

private:
    void ReadSheetView(pugi::xml_node view) {
        sheet_.showGridLines = AttributeBool(view, "showGridLines", true);
        sheet_.tabSelected = AttributeBool(view, "tabSelected", false);
        carried_.sheetViewAttributes = AttributesExcept(view, {"showGridLines", "tabSelected", "workbookViewId"});
        // With frozen or split panes each pane has its own selection; the active pane's counts.
        const pugi::xml_node pane = FirstChild(view, "pane");
        std::string_view activePane = AttributeText(pane, "activePane");
        if (activePane.empty()) {
            activePane = "topLeft";
        }
        pugi::xml_node chosen;
        ForEachChild(view, "selection", [&](pugi::xml_node selection) {
            std::string_view selectionPane = AttributeText(selection, "pane");
            if (selectionPane.empty()) {
                selectionPane = "topLeft";
            }
            if (!chosen || selectionPane == activePane) {
                chosen = selection;
            }
        });
        const std::string_view activeCell = AttributeText(chosen, "activeCell");
        if (ParseCellReference(activeCell)) {
            sheet_.activeCell = activeCell;
        }
        CarryViewChildren(view, chosen, activePane);
    }

    // The view's pane and children as they were; the chosen selection is written again as it was
    // while the sheet's active cell stays the one it gave.
    void CarryViewChildren(pugi::xml_node view, pugi::xml_node chosen, std::string_view activePane) {
        carried_.activePane = FirstChild(view, "pane") ? activePane : std::string_view();
        carried_.activeCell = sheet_.activeCell;
        for (pugi::xml_node child = view.first_child(); child; child = child.next_sibling()) {
            if (child.type() != pugi::node_element) {
                continue;
            }
            if (LocalName(child) == "pane") {
                carried_.pane = ElementMarkup(child);
                continue;
            }
            if (child == chosen) {
                carried_.activeSelection = carried_.viewChildren.size();
            }
            carried_.viewChildren.push_back(ElementMarkup(child));
        }
    }

    void ReadColumnRange(pugi::xml_node col) {
        const std::optional<uint32_t> first = AttributeUnsigned(col, "min");
        const std::optional<uint32_t> last = AttributeUnsigned(col, "max");
        if (!first || !last || *first < 1 || *first > MaxColumnIndex || *last < *first) {
            return;
        }
        ColumnRange range;
        range.first = *first;
        range.last = std::min(*last, MaxColumnIndex);
        range.format = context_.FormatIndex(AttributeText(col, "style"));
        range.hidden = AttributeBool(col, "hidden", false);
        range.outlineLevel = ParseOutlineLevel(AttributeText(col, "outlineLevel"));
        range.collapsed = AttributeBool(col, "collapsed", false);
        // A width is the column's width whether or not it is marked custom; the mark is kept apart.
        if (const std::optional<double> width = AttributeDouble(col, "width")) {
            range.width = std::clamp(*width, 0.0, MaxColumnWidth);
            range.customWidth = AttributeBool(col, "customWidth", false);
        }
        if (range.width || range.format || range.hidden || range.outlineLevel != 0 || range.collapsed) {
            sheet_.columns.push_back(range);
        }
    }

    void RemoveColumnOverlaps() {
        uint32_t covered = 0;
        std::vector<ColumnRange> kept;
        for (ColumnRange range : sheet_.columns) {
            range.first = std::max(range.first, covered + 1);
            if (range.first <= range.last) {
                covered = range.last;
                kept.push_back(range);
            }
        }
        sheet_.columns = std::move(kept);
    }

    void ReadMerge(pugi::xml_node merge) {
        if (const std::optional<CellBlock> block = ParseCellBlock(AttributeText(merge, "ref"))) {
            sheet_.merges.push_back(*block);
        }
    }

    const WorksheetContext& context_;
    SheetDocument& sheet_;
    CarriedWorksheet& carried_;
};

}  // namespace

std::optional<uint32_t> WorksheetContext::FormatIndex(std::string_view text) const {
    const std::optional<uint32_t> index = ParseUnsigned(text);
    return index && *index < formatCount ? index : std::nullopt;
}

// The cells are read as the scanner passes them; the few small elements that hold the sheet's
// settings are copied out, and read as a tree once the part has been scanned. The elements the
// engine does not model are kept as they are.
SheetDrawingReferences ReadWorksheet(const XmlByteSource& source, std::string_view partName,
                                     const WorksheetContext& context, SheetDocument& sheet, CarriedWorksheet& carried) {
    XmlPullScanner scanner(source, partName);
    std::string settings = "<settings>";
    while (scanner.Next() != XmlPullScanner::Token::StartElement) {
    }
    carried.worksheet.rootAttributes = AttributesExcept(scanner.Attributes(), {"xmlns", "xmlns:r"});
    CarriedElementCollector elements(WorksheetElementOrder, carried.worksheet.elements);
    bool sheetDataRead = false;
    while (scanner.NextChild(1)) {
        const std::string_view name = scanner.LocalName();
        if (name == "sheetData") {
            // A second one would repeat rows, which no file may hold and Excel would repair.
            if (std::exchange(sheetDataRead, true)) {
                throw PackageError(PackageError::Reason::Corrupt,
                                   "More than one sheetData in " + std::string(partName));
            }
            elements.Pass(name);
            ReadSheetData(scanner, partName, context, sheet);
        } else if (Lists(SettingElements, name)) {
            elements.Pass(name);
            scanner.CopyElement(settings);
        } else if (Lists(DerivedElements, name)) {
            elements.Pass(name);
            scanner.SkipElement();
        } else {
            const std::string localName(name);
            std::string xml;
            scanner.CopyElement(xml);
            elements.Carry(localName, std::move(xml));
        }
    }
    while (scanner.Next() != XmlPullScanner::Token::End) {
    }
    settings += "</settings>";
    pugi::xml_document document;
    ParseXmlPart(document, settings, partName);
    return WorksheetSettingsReader(context, sheet, carried).Read(document.document_element());
}

}  // namespace ooxml
