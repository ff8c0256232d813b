#pragma once

// What an opened package holds that the engine does not model, kept so that saving the workbook
// again loses nothing. Parts the engine does not rewrite keep their names, bytes and relationship
// parts; the parts it rewrites keep the elements it does not read, in their place.

#include "ooxml/document/cell_format.hpp"
#include "ooxml/document/defined_name.hpp"
#include "ooxml/document/relationship.hpp"

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace ooxml {

// An attribute kept with its qualified name ("xmlns:x14ac", "mc:Ignorable", "xWindow").
using CarriedAttribute = std::pair<std::string, std::string>;

// An element of a rewritten part that the engine does not read, as the file wrote it. Its slot is
// its place among the part's elements: the index of its name in the order the schema gives them,
// or for an element the schema does not list, the slot of the element before it.
struct CarriedElement {
    uint16_t slot = 0;
    std::string name;  // local
    std::string xml;
};

// What a rewritten part keeps of the file's: the root's namespace declarations and other
// attributes the engine does not write itself, the elements it does not read, and the
// relationships that those elements (or the parts they lead to) need, under their own ids.
struct CarriedMarkup {
    std::vector<CarriedAttribute> rootAttributes;
    std::vector<CarriedElement> elements;  // in the file's order
    std::vector<Relationship> relationships;

    bool Empty() const { return rootAttributes.empty() && elements.empty() && relationships.empty(); }
};

// A part the engine does not rewrite, with its bytes and its relationships part as the file had them.
struct CarriedPart {
    std::string contentType;
    std::string bytes;
    std::vector<Relationship> relationships;  // read from relationshipsBytes, to follow where they lead
    std::string relationshipsBytes;           // empty when the part has none
};

// A sheet that is not a worksheet (a chart sheet, a dialog sheet, a macro sheet), kept whole: its
// entry in the workbook's sheet list and the relationship to its part.
struct CarriedSheet {
    std::string name;
    std::string state;          // "visible", "hidden", "veryHidden"
    uint32_t position = 0;      // among all the workbook's sheets when opened
    Relationship relationship;  // none (an empty id) for a module or dialog kept in the macro project
};

// A defined name scoped to a carried sheet: the engine does not know that sheet, so neither the name.
struct CarriedSheetName {
    DefinedName name;           // its localSheet unset
    uint32_t carriedSheet = 0;  // index into CarriedWorkbook::sheets
};

// A worksheet's carried content.
struct CarriedWorksheet {
    // The sheet's name in the file: what the carried formulas call it.
    std::string name;
    CarriedMarkup worksheet;
    // Of the first sheet view: what the engine does not set, its pane when split or frozen, and
    // its children after the pane (selections, pivot selections, extLst) as the file wrote them.
    std::vector<CarriedAttribute> sheetViewAttributes;
    std::string pane;
    std::vector<std::string> viewChildren;
    // The selection of the active pane among viewChildren, its pane and the active cell it gave:
    // written again as it was while the active cell stays.
    std::optional<std::size_t> activeSelection;
    std::string activePane;
    std::string activeCell;
    std::vector<CarriedAttribute> sheetFormatAttributes;
    std::vector<CarriedAttribute> printOptionsAttributes;
    // The anchors of the sheet's drawing that are not text boxes; a slot counts the text boxes below.
    CarriedMarkup drawing;
    // The highest shape id among those anchors: the shapes the engine adds take higher ones.
    uint32_t highestShapeId = 0;
    // The shapes of the sheet's legacy VML drawing that are not notes (form controls, the icons of
    // embedded objects, pictures), with the shape types they use, as the file wrote them, and the
    // drawing's relationships (their images). They keep their ids, which the sheet's oleObjects
    // and controls refer to, so the blocks of ids they take are kept from the notes.
    CarriedMarkup legacyDrawing;
    std::vector<uint32_t> legacyDrawingIdBlocks;  // ascending
};

// The format of a named style (an entry of cellStyleXfs) as the file wrote it. The engine does not
// model named styles, but its cell formats keep the index of the style they are based on. The
// number format, font, fill and border are shared with the cell formats' and renumbered with them;
// the other attributes (which parts the style includes) and the children are written as they were.
struct CarriedStyleFormat {
    CellFormat format;
    std::vector<CarriedAttribute> attributes;  // all but the four ids
    std::string children;                      // alignment, protection, extLst
};

// What the styles part keeps: its named styles' formats (the named styles themselves, the
// cellStyles that refer to them by index, are among the carried elements), the number formats the
// file declared under their ids, used or not, and the elements the engine does not read.
struct CarriedStyles {
    CarriedMarkup markup;
    std::vector<CarriedStyleFormat> styleFormats;
    std::map<uint32_t, std::string> numberFormats;  // by numFmtId
    bool listsIndexedColors = false;                // the file listed its palette, even unchanged from Excel's
};

// The workbook's carried content: the parts, the package's own relationships, and what the
// workbook and styles parts hold beyond the model.
struct CarriedWorkbook {
    std::string workbookContentType;                         // the file's: a template or macro workbook stays one
    std::map<std::string, CarriedPart> parts;                // by part name
    std::map<std::string, std::string> defaultContentTypes;  // by lower-case extension, as the file declared them
    std::vector<Relationship> packageRelationships;
    CarriedMarkup workbook;
    std::vector<CarriedAttribute> workbookPrAttributes;
    std::vector<CarriedAttribute> protectionAttributes;  // password hashes and the like
    std::vector<CarriedAttribute> bookViewAttributes;
    std::string firstSheet;  // the sheet the tab bar shows first, when not the first one
    std::vector<CarriedAttribute> calcAttributes;
    std::vector<CarriedSheet> sheets;
    std::vector<std::string> worksheetNames;  // the file's worksheets, in order
    std::vector<CarriedSheetName> sheetNames;
    CarriedStyles styles;
    // The document properties the engine does not set: of the core part all but the last author
    // and modification time (so the creator, creation time, title, subject, keywords, ...), of the
    // extended part the company, manager, hyperlink base and the like.
    CarriedMarkup coreProperties;
    CarriedMarkup appProperties;
};

}  // namespace ooxml
