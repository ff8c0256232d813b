#include "writer_test_support.hpp"

namespace writer_test {

using namespace ooxml;

namespace {

Color Rgb(uint32_t argb) { return Color{Color::Kind::Rgb, argb, 0, 0.0}; }
Color Indexed(int32_t index) { return Color{Color::Kind::Indexed, 0, index, 0.0}; }
Color Theme(int32_t index, double tint) { return Color{Color::Kind::Theme, 0, index, tint}; }
Color Auto() { return Color{Color::Kind::Auto, 0, 0, 0.0}; }

uint32_t AddFormat(WorkbookDocument& document, const CellFormat& format) {
    document.formats.push_back(format);
    return static_cast<uint32_t>(document.formats.size() - 1);
}

uint32_t AddString(WorkbookDocument& document, const std::string& text) {
    document.strings.push_back(SharedString{text, {}});
    return static_cast<uint32_t>(document.strings.size() - 1);
}

Cell NumberCell(uint32_t column, double value, uint32_t format = 0) {
    return Cell{column, format, 0, NoFormula, value, CellType::Number};
}

Cell StringCell(uint32_t column, uint32_t string, uint32_t format = 0) {
    return Cell{column, format, string, NoFormula, 0.0, CellType::String};
}

}  // namespace

WorkbookDocument FullDocument() {
    WorkbookDocument document;

    // 1: bold, red solid fill, thin borders in an indexed colour, a built-in number format.
    CellFormat boldRed;
    boldRed.numberFormat = "0.00";
    boldRed.font.bold = true;
    boldRed.fill = Fill{"solid", Rgb(0xFFFF0000), Indexed(64), {}, false};
    for (BorderLine* line : {&boldRed.border.left, &boldRed.border.right, &boldRed.border.top, &boldRed.border.bottom}) {
        *line = BorderLine{"thin", Indexed(10)};
    }
    AddFormat(document, boldRed);

    // 2: italic, double underline, struck out, themed colour with tint; pattern fill; mixed
    // borders with both diagonals; centred, top, wrapped; a custom number format.
    CellFormat fancy;
    fancy.numberFormat = "#,##0.000;[Red]-#,##0.000";
    fancy.font.name = "Arial";
    fancy.font.size = 12.5;
    fancy.font.italic = true;
    fancy.font.underline = "double";
    fancy.font.strike = true;
    fancy.font.color = Theme(4, 0.39997558519241921);
    fancy.fill = Fill{"darkGrid", Theme(5, -0.249977111117893), Indexed(9), {}, false};
    fancy.border.left = BorderLine{"medium", Auto()};
    fancy.border.right = BorderLine{"thick", Rgb(0xFF00B050)};
    fancy.border.top = BorderLine{"dashed", Theme(1, 0.5)};
    fancy.border.bottom = BorderLine{"dotted", {}};
    fancy.border.diagonal = BorderLine{"double", Rgb(0xFF123456)};
    fancy.border.diagonalUp = true;
    fancy.border.diagonalDown = true;
    fancy.alignment.horizontal = "center";
    fancy.alignment.vertical = "top";
    fancy.alignment.wrapText = true;
    AddFormat(document, fancy);

    // 3: superscript, rotated and shrunk, unlocked and hidden, quote prefix.
    CellFormat protectedText;
    protectedText.font.vertAlign = "superscript";
    protectedText.font.underline = "single";
    protectedText.alignment.textRotation = 45;
    protectedText.alignment.shrinkToFit = true;
    protectedText.locked = false;
    protectedText.hidden = true;
    protectedText.quotePrefix = true;
    AddFormat(document, protectedText);

    // 4: subscript, vertical text, indented left, centred vertically, text format.
    CellFormat indented;
    indented.numberFormat = "@";
    indented.font.vertAlign = "subscript";
    indented.font.family = 0;
    indented.font.scheme = "";
    indented.font.color = Rgb(0xFF0000FF);
    indented.alignment.horizontal = "left";
    indented.alignment.indent = 2;
    indented.alignment.vertical = "center";
    indented.alignment.textRotation = 255;
    AddFormat(document, indented);

    // 5: a date format that is built in, with the same font as format 1.
    CellFormat date;
    date.numberFormat = "m/d/yyyy";
    date.font.bold = true;
    AddFormat(document, date);

    // 6..18: every border style on every edge.
    for (const char* style : {"thin", "medium", "dashed", "dotted", "thick", "double", "hair", "mediumDashed",
                              "dashDot", "mediumDashDot", "dashDotDot", "mediumDashDotDot", "slantDashDot"}) {
        CellFormat bordered;
        for (BorderLine* line : {&bordered.border.left, &bordered.border.right, &bordered.border.top,
                                 &bordered.border.bottom, &bordered.border.diagonal}) {
            *line = BorderLine{style, Indexed(8)};
        }
        bordered.border.diagonalDown = true;
        AddFormat(document, bordered);
    }

    const uint32_t plain = AddString(document, "Plain text");
    const uint32_t spaced = AddString(document, "  leading and trailing  ");
    const uint32_t special = AddString(document, "<tag> & \"quotes\" 'apostrophe'");
    const uint32_t control = AddString(document, std::string("bell\x07" "char\rreturn"));
    const uint32_t literalEscape = AddString(document, "_x0041_ stays literal");
    const uint32_t unicode = AddString(document, "Gr\xC3\xBC\xC3\x9F" "e \xE2\x9C\x93 \xF0\x9D\x84\x9E");
    const uint32_t multiline = AddString(document, "line one\nline two");
    SharedString rich;
    rich.text = "Bold red, then plain";
    Font runFont;
    runFont.bold = true;
    runFont.color = Rgb(0xFFFF0000);
    rich.runs.push_back(TextRun{"Bold red", runFont});
    rich.runs.push_back(TextRun{", then plain", std::nullopt});
    document.strings.push_back(rich);
    const uint32_t richString = static_cast<uint32_t>(document.strings.size() - 1);
    const uint32_t notAvailable = AddString(document, "#N/A");
    const uint32_t divideByZero = AddString(document, "#DIV/0!");
    const uint32_t formulaText = AddString(document, "Plain text!");
    const uint32_t hiddenText = AddString(document, "on the hidden sheet");

    SheetDocument data;
    data.name = "Data & <Results>";
    data.showGridLines = false;
    data.printGridLines = true;
    data.tabSelected = true;
    data.activeCell = "B2";
    data.defaultColumnWidth = 10.7109375;
    data.columns.push_back(ColumnRange{1, 1, 20.7109375, std::nullopt, false, true});
    data.columns.push_back(ColumnRange{2, 4, 12.5, 2u, false, true});
    data.columns.push_back(ColumnRange{5, 5, std::nullopt, std::nullopt, true});
    data.columns.push_back(ColumnRange{6, 6, std::nullopt, 1u, false});
    data.formulas = {"SUM(A1:A3)", "A4&\"!\"", "A1>0", "1/0", "NA()"};

    Row row1{1, std::nullopt, std::nullopt, false, {}};
    row1.cells = {NumberCell(1, 0.1, 1), StringCell(2, plain), StringCell(3, richString, 2), NumberCell(4, 45000, 5)};
    Row row2{2, std::nullopt, std::nullopt, false, {}};
    row2.cells = {NumberCell(1, 1e-300), StringCell(2, spaced, 3), StringCell(3, special, 4)};
    Row row3{3, 30.0, std::nullopt, false, {}};
    row3.cells = {NumberCell(1, -123456789.125), StringCell(2, control), StringCell(3, literalEscape)};
    Row row4{4, std::nullopt, 1u, false, {}};
    Cell sum = NumberCell(1, 0.1 + 1e-300 - 123456789.125);
    sum.formula = 0;
    Cell concatenated = StringCell(2, formulaText);
    concatenated.formula = 1;
    Cell comparison;
    comparison.column = 3;
    comparison.type = CellType::Boolean;
    comparison.number = 1;
    comparison.formula = 2;
    Cell division;
    division.column = 4;
    division.type = CellType::Error;
    division.string = divideByZero;
    division.formula = 3;
    row4.cells = {sum, concatenated, comparison, division};
    Row row5{5, std::nullopt, std::nullopt, true, {}};
    Cell falseCell;
    falseCell.column = 1;
    falseCell.type = CellType::Boolean;
    falseCell.number = 0;
    Cell errorCell;
    errorCell.column = 2;
    errorCell.type = CellType::Error;
    errorCell.string = notAvailable;
    Cell blank;
    blank.column = 3;
    blank.format = 2;
    Cell uncalculated;
    uncalculated.column = 4;
    uncalculated.formula = 4;
    row5.cells = {falseCell, errorCell, blank, uncalculated, StringCell(5, unicode), StringCell(6, multiline)};
    Row row7{7, 8.25, std::nullopt, false, {}};
    Row row8{8, std::nullopt, std::nullopt, false, {}};
    for (uint32_t i = 0; i < 13; ++i) {
        row8.cells.push_back(NumberCell(i + 1, i, 6 + i));
    }
    Row row10{10, std::nullopt, std::nullopt, false, {}};
    row10.cells = {StringCell(1, plain, 2), Cell{2, 2, 0, NoFormula, 0.0, CellType::Blank}};
    Row row30{30, std::nullopt, std::nullopt, false, {}};
    row30.cells = {NumberCell(28, 2.5)};
    data.rows = {row1, row2, row3, row4, row5, row7, row8, row10, row30};
    data.merges = {CellBlock{10, 1, 11, 3}, CellBlock{12, 5, 12, 6}};

    SheetDocument hidden;
    hidden.name = "Hidden";
    hidden.state = "hidden";
    Row hiddenRow{1, std::nullopt, std::nullopt, false, {}};
    hiddenRow.cells = {StringCell(1, hiddenText)};
    hidden.rows = {hiddenRow};

    SheetDocument empty;
    empty.name = "Empty";
    empty.defaultRowHeight = 18.75;

    data.shapes = FullTextBoxes();
    data.comments = FullComments();
    CellComment hiddenNote;
    hiddenNote.row = 3;
    hiddenNote.column = 3;
    hiddenNote.author = "Carl";
    hiddenNote.text.text = "On the hidden sheet";
    hidden.comments = {hiddenNote};

    document.sheets = {data, hidden, empty};
    document.names = {
        DefinedName{"Total", "'Data & <Results>'!$A$1:$A$3", std::nullopt, false},
        DefinedName{"_xlnm.Print_Area", "'Data & <Results>'!$A$1:$D$12", 0u, false},
        DefinedName{"Secret", "Hidden!$A$1", std::nullopt, true},
        DefinedName{"Local", "Empty!$B$2", 2u, false},
    };
    document.palette = {0x000000, 0xFFFFFF, 0xFF0000, 0x00FF00, 0x0000FF, 0xFFFF00, 0xFF00FF, 0x00FFFF};
    for (uint32_t i = 0; i < 56; ++i) {
        document.palette.push_back((i * 0x040404u) ^ 0x102030u);
    }
    document.activeSheet = 0;
    document.lockStructure = true;
    document.lockWindows = true;
    document.properties.creator = "Ann Author";
    document.properties.lastModifiedBy = "Bob <Editor>";
    document.properties.created = 1700000000;
    document.properties.modified = 1700003600;
    return document;
}

std::vector<DrawingShape> FullTextBoxes() {
    DrawingShape plain;
    plain.id = 2;
    plain.name = "TextBox 1";
    plain.from = CellAnchor{4, 0, 8, 0};
    plain.to = CellAnchor{7, 0, 14, 0};
    plain.x = 2438400;
    plain.y = 1524000;
    plain.width = 1828800;
    plain.height = 1143000;
    plain.fill = Color{Color::Kind::Theme, 0, 0, 0.0};
    plain.line = Color{Color::Kind::Theme, 0, 1, -0.25};
    plain.lineWidth = 19050;
    plain.text.text = "Plain text\n\nafter an empty line";

    Font strong;
    strong.name = "Arial";
    strong.size = 14;
    strong.bold = true;
    strong.italic = true;
    strong.strike = true;
    strong.underline = "single";
    strong.color = Color{Color::Kind::Rgb, 0xFF336699, 0, 0.0};
    strong.family = 2;
    strong.scheme = "";
    Font heading;
    heading.name = "Calibri Light";
    heading.scheme = "major";
    heading.vertAlign = "superscript";
    heading.color = Color{Color::Kind::Theme, 0, 4, 0.4};
    Font low;
    low.underline = "double";
    low.vertAlign = "subscript";
    DrawingShape rich;
    rich.id = 3;
    rich.name = "Notes & <Remarks>";
    rich.editAs = "oneCell";
    rich.from = CellAnchor{1, 95250, 20, 19050};
    rich.to = CellAnchor{5, 0, 27, 152400};
    rich.x = 704850;
    rich.y = 3829050;
    rich.width = 2343150;
    rich.height = 1466850;
    rich.fill.reset();
    rich.line.reset();
    rich.insetLeft = 0;
    rich.insetTop = 12700;
    rich.insetRight = 25400;
    rich.insetBottom = 38100;
    rich.wrap = false;
    rich.autoFit = true;
    rich.verticalAnchor = "ctr";
    rich.alignment = "ctr";
    rich.macro = "Module1.OnClick";
    rich.hidden = true;
    rich.text.runs = {TextRun{"Default ", std::nullopt}, TextRun{"bold\n", strong}, TextRun{"accent\n", heading},
                      TextRun{"last", low}};
    for (const TextRun& run : rich.text.runs) {
        rich.text.text += run.text;
    }

    DrawingShape empty;
    empty.id = 4;
    empty.name = "TextBox 3";
    empty.editAs = "absolute";
    empty.from = CellAnchor{10, 0, 2, 0};
    empty.to = CellAnchor{12, 304800, 6, 0};
    empty.x = 6096000;
    empty.y = 381000;
    empty.width = 1524000;
    empty.height = 762000;
    empty.fill = Color{Color::Kind::Theme, 0, 5, 0.6};
    empty.fillTransparency = 0.25;
    empty.line = Color{Color::Kind::Rgb, 0xFF00B050, 0, 0.0};
    empty.verticalAnchor = "b";
    empty.alignment = "r";
    return {plain, rich, empty};
}

std::vector<CellComment> FullComments() {
    CellComment first;
    first.row = 1;
    first.column = 1;
    first.author = "Ann";
    first.text.text = "_x0041_ & <tag>";
    first.left = 59.25;
    first.top = 1.5;
    first.anchor = LegacyAnchor{1, 15, 0, 2, 3, 15, 3, 16};

    CellComment plain;
    plain.row = 2;
    plain.column = 2;
    plain.author = "Bob <Reviewer>";
    plain.text.text = "Plain note";
    plain.left = 107.25;
    plain.top = 7.5;
    plain.anchor = LegacyAnchor{2, 15, 0, 10, 4, 15, 4, 4};

    Font label;
    label.name = "Tahoma";
    label.size = 9;
    label.bold = true;
    label.color = Color{Color::Kind::Indexed, 0, 64, 0.0};
    label.scheme = "";
    Font body = label;
    body.bold = false;
    body.italic = true;
    body.underline = "double";
    body.vertAlign = "superscript";
    CellComment rich;
    rich.row = 17;
    rich.column = 4;
    rich.author = "Ann";
    rich.text.runs = {TextRun{"Ann:", label}, TextRun{"\nrich note", body}};
    rich.text.text = "Ann:\nrich note";
    rich.visible = true;
    rich.left = 203.25;
    rich.top = 232.5;
    rich.width = 144;
    rich.height = 79.5;
    rich.anchor = LegacyAnchor{4, 15, 15, 10, 7, 15, 20, 6};
    rich.moveWithCells = false;
    rich.sizeWithCells = false;
    rich.fillRgb = 0xCCFFCC;
    rich.lineRgb = 0x336699;
    rich.lineWeight = 1.5;
    rich.insets = std::array<double, 4>{1.8, 3.6, 7.2, 0.9};
    return {first, plain, rich};
}

}  // namespace writer_test
