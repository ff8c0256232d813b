#include "ooxml/comments/comments_reader.hpp"

#include "ooxml/shared_strings/shared_strings_reader.hpp"
#include "ooxml/reference/cell_reference_reader.hpp"
#include "ooxml/xml/xml_node_access.hpp"
#include "ooxml/xml/xml_part_parser.hpp"

#include <algorithm>

namespace ooxml {

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
        comment.hasShape = false;
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
