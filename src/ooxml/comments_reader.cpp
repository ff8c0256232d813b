#include "ooxml/comments_reader.hpp"

#include "ooxml/cell_reference_reader.hpp"
#include "ooxml/shared_strings_reader.hpp"
#include "ooxml/xml_node_access.hpp"
#include "ooxml/xml_part_parser.hpp"

#include <algorithm>

namespace ooxml {

namespace {

// A standard column is 64 pixels (48 points) wide and a standard row 20 pixels (15 points) high;
// a pixel is 0.75 points.
constexpr double ColumnPoints = 48.0;
constexpr double RowPoints = 15.0;
constexpr double PointsPerPixel = 0.75;
constexpr uint32_t LeftOffset = 15;          // pixels into the column right of the cell
constexpr uint32_t TopOffset = 10;           // pixels into the row above the cell
constexpr uint32_t TopOffsetInFirstRow = 2;  // pixels into the first row, which has none above
constexpr uint32_t RowPixels = 20;
constexpr uint32_t HeightPixels = 74;

// Where Excel puts a new comment's 96 x 55.5 point (128 x 74 pixel) shape: from 15 pixels into
// the next column, 10 pixels into the row above, over two standard columns and 74 pixels down.
void PlaceAsNew(CellComment& comment) {
    const uint32_t column = comment.column - 1;
    const uint32_t row = comment.row - 1;
    const uint32_t topRow = row == 0 ? 0 : row - 1;
    const uint32_t topOffset = row == 0 ? TopOffsetInFirstRow : TopOffset;
    comment.anchor = LegacyAnchor{column + 1,
                                  LeftOffset,
                                  topRow,
                                  topOffset,
                                  column + 3,
                                  LeftOffset,
                                  topRow + (topOffset + HeightPixels) / RowPixels,
                                  (topOffset + HeightPixels) % RowPixels};
    comment.left = (column + 1) * ColumnPoints + LeftOffset * PointsPerPixel;
    comment.top = topRow * RowPoints + topOffset * PointsPerPixel;
}

}  // namespace

std::vector<CellComment> ReadComments(std::string& xml, std::string_view partName) {
    pugi::xml_document document;
    ParseXmlPart(document, xml, partName);
    const pugi::xml_node root = document.document_element();
    std::vector<std::string_view> authors;
    ForEachChild(FirstChild(root, "authors"), "author",
                 [&](pugi::xml_node author) { authors.emplace_back(author.child_value()); });
    std::vector<CellComment> comments;
    ForEachChild(FirstChild(root, "commentList"), "comment", [&](pugi::xml_node node) {
        const std::optional<CellPosition> cell = ParseCellReference(AttributeText(node, "ref"));
        if (!cell) {
            return;
        }
        CellComment& comment = comments.emplace_back();
        comment.row = cell->row;
        comment.column = cell->column;
        const std::optional<uint32_t> author = AttributeUnsigned(node, "authorId");
        if (author && *author < authors.size()) {
            comment.author = authors[*author];
        }
        comment.text = ReadStringItem(FirstChild(node, "text"));
        PlaceAsNew(comment);
    });
    const auto cellOrder = [](const CellComment& a, const CellComment& b) {
        return a.row != b.row ? a.row < b.row : a.column < b.column;
    };
    const auto sameCell = [](const CellComment& a, const CellComment& b) {
        return a.row == b.row && a.column == b.column;
    };
    std::stable_sort(comments.begin(), comments.end(), cellOrder);
    comments.erase(std::unique(comments.begin(), comments.end(), sameCell), comments.end());
    return comments;
}

}  // namespace ooxml
