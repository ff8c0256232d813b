#include "ooxml/comments/comments_part.hpp"

#include "ooxml/package_error.hpp"
#include "ooxml/shared_strings/shared_strings_part.hpp"
#include "ooxml/reference/cell_reference_reader.hpp"
#include "ooxml/reference/column_name.hpp"

#include <algorithm>
#include <string>
#include <vector>

namespace ooxml {

void WriteCommentsPart(XmlWriter& xml, const SheetDocument& sheet) {
    std::vector<std::string_view> authors;
    std::vector<std::size_t> authorIds;
    for (const CellComment& comment : sheet.comments) {
        if (comment.row < 1 || comment.row > MaxRowIndex || comment.column < 1 || comment.column > MaxColumnIndex) {
            throw PackageError(PackageError::Reason::WriteFailed,
                               "sheet \"" + sheet.name + "\": a comment is on a cell outside the sheet");
        }
        const auto known = std::find(authors.begin(), authors.end(), comment.author);
        authorIds.push_back(static_cast<std::size_t>(known - authors.begin()));
        if (known == authors.end()) {
            authors.push_back(comment.author);
        }
    }
    xml.Declaration();
    xml.StartElement("comments");
    xml.Attribute("xmlns", "http://schemas.openxmlformats.org/spreadsheetml/2006/main");
    xml.StartElement("authors");
    for (const std::string_view author : authors) {
        xml.Element("author", author);
    }
    xml.EndElement();
    xml.StartElement("commentList");
    for (std::size_t i = 0; i < sheet.comments.size(); ++i) {
        const CellComment& comment = sheet.comments[i];
        xml.StartElement("comment");
        xml.Attribute("ref", CellReferenceText(comment.row, comment.column));
        xml.Attribute("authorId", authorIds[i]);
        WriteStringItem(xml, "text", comment.text);
        xml.EndElement();
    }
    xml.EndElement();
    xml.EndElement();
}

}  // namespace ooxml
