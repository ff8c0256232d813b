#include "excel/embedded/document/format_document_conversion.hpp"

#include "excel/embedded/format/enum_table.hpp"

#include <string>
#include <string_view>

namespace excel::embedded {

namespace {

// The file's words for the engine's enumerations, in their order; "" is the attribute left out.
constexpr EnumTable<Underline, std::string_view, 5> underlines{
    {"", "single", "double", "singleAccounting", "doubleAccounting"}};
constexpr EnumTable<Script, std::string_view, 3> scripts{{"", "superscript", "subscript"}};
constexpr EnumTable<FontScheme, std::string_view, 3> schemes{{"", "major", "minor"}};
constexpr EnumTable<FillPattern, std::string_view, 19> patterns{
    {"none", "solid", "mediumGray", "darkGray", "lightGray", "darkHorizontal", "darkVertical", "darkDown", "darkUp",
     "darkGrid", "darkTrellis", "lightHorizontal", "lightVertical", "lightDown", "lightUp", "lightGrid", "lightTrellis",
     "gray125", "gray0625"}};
constexpr EnumTable<BorderStyle, std::string_view, 14> borderStyles{
    {"", "thin", "medium", "dashed", "dotted", "thick", "double", "hair", "mediumDashed", "dashDot", "mediumDashDot",
     "dashDotDot", "mediumDashDotDot", "slantDashDot"}};
constexpr EnumTable<HorizontalAlignment, std::string_view, 8> horizontalAlignments{
    {"", "left", "center", "right", "fill", "justify", "centerContinuous", "distributed"}};
constexpr EnumTable<VerticalAlignment, std::string_view, 5> verticalAlignments{
    {"top", "center", "", "justify", "distributed"}};
constexpr EnumTable<FormatColor::Kind, ooxml::Color::Kind, 5> colorKinds{
    {ooxml::Color::Kind::None, ooxml::Color::Kind::Auto, ooxml::Color::Kind::Rgb, ooxml::Color::Kind::Indexed,
     ooxml::Color::Kind::Theme}};

// The fields the engine and the file spell alike, copied either way.
template <class From, class To>
void CopyPlainFontFields(const From& from, To& to) {
    to.name = from.name;
    to.size = from.size;
    to.bold = from.bold;
    to.italic = from.italic;
    to.family = from.family;
    to.charset = from.charset;
}

template <class From, class To>
void CopyPlainCellFields(const From& from, To& to) {
    to.numberFormat = from.numberFormat;
    to.alignment.wrapText = from.alignment.wrapText;
    to.alignment.shrinkToFit = from.alignment.shrinkToFit;
    to.alignment.indent = from.alignment.indent;
    to.alignment.textRotation = from.alignment.textRotation;
    to.quotePrefix = from.quotePrefix;
    to.locked = from.locked;
    to.hidden = from.hidden;
    to.pivotButton = from.pivotButton;
    to.style = from.style;
}

template <class Enum, std::size_t N>
Enum FromWord(const EnumTable<Enum, std::string_view, N>& table, std::string_view word, Enum fallback) {
    return table.Find(word).value_or(fallback);
}

ooxml::BorderLine DocumentLine(const BorderLine& line) {
    return ooxml::BorderLine{std::string(borderStyles[line.style]), DocumentColor(line.color)};
}

BorderLine LineFromDocument(const ooxml::BorderLine& line) {
    return BorderLine{FromWord(borderStyles, line.style, BorderStyle::None), ColorFromDocument(line.color)};
}

}  // namespace

ooxml::Color DocumentColor(const FormatColor& color) {
    return ooxml::Color{colorKinds[color.kind], color.argb, color.index, color.tint};
}

FormatColor ColorFromDocument(const ooxml::Color& color) {
    return FormatColor{colorKinds.Find(color.kind).value_or(FormatColor::Kind::None), color.argb, color.index,
                       color.tint};
}

ooxml::Font DocumentFont(const FontFormat& font) {
    ooxml::Font out;
    CopyPlainFontFields(font, out);
    out.strike = font.strikethrough;
    out.underline = underlines[font.underline];
    out.vertAlign = scripts[font.script];
    out.color = DocumentColor(font.color);
    out.scheme = schemes[font.scheme];
    return out;
}

FontFormat FontFromDocument(const ooxml::Font& font) {
    FontFormat out;
    CopyPlainFontFields(font, out);
    out.strikethrough = font.strike;
    out.underline = FromWord(underlines, font.underline, Underline::None);
    out.script = FromWord(scripts, font.vertAlign, Script::Baseline);
    out.color = ColorFromDocument(font.color);
    out.scheme = FromWord(schemes, font.scheme, FontScheme::None);
    return out;
}

ooxml::CellFormat DocumentCellFormat(const CellFormat& format) {
    ooxml::CellFormat out;
    CopyPlainCellFields(format, out);
    out.font = DocumentFont(format.font);
    out.fill = ooxml::Fill{std::string(patterns[format.fill.pattern]), DocumentColor(format.fill.foreground),
                           DocumentColor(format.fill.background), format.fill.gradient, format.fill.pathGradient};
    const CellBorder& border = format.border;
    out.border = ooxml::Border{DocumentLine(border.left),   DocumentLine(border.right),    DocumentLine(border.top),
                               DocumentLine(border.bottom), DocumentLine(border.diagonal), border.diagonalUp,
                               border.diagonalDown};
    out.alignment.horizontal = horizontalAlignments[format.alignment.horizontal];
    out.alignment.vertical = verticalAlignments[format.alignment.vertical];
    return out;
}

CellFormat CellFormatFromDocument(const ooxml::CellFormat& format) {
    CellFormat out;
    CopyPlainCellFields(format, out);
    out.font = FontFromDocument(format.font);
    out.fill = CellFill{FromWord(patterns, format.fill.patternType, FillPattern::None),
                        ColorFromDocument(format.fill.foreground), ColorFromDocument(format.fill.background),
                        format.fill.gradient, format.fill.pathGradient};
    const ooxml::Border& border = format.border;
    out.border = CellBorder{LineFromDocument(border.left),
                            LineFromDocument(border.right),
                            LineFromDocument(border.top),
                            LineFromDocument(border.bottom),
                            LineFromDocument(border.diagonal),
                            border.diagonalUp,
                            border.diagonalDown};
    out.alignment.horizontal =
        FromWord(horizontalAlignments, format.alignment.horizontal, HorizontalAlignment::General);
    out.alignment.vertical = FromWord(verticalAlignments, format.alignment.vertical, VerticalAlignment::Bottom);
    return out;
}

}  // namespace excel::embedded
