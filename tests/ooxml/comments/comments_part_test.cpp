// The comments part: authors, the comment list and rich text.

#include "ooxml/comments/comments_part.hpp"
#include "ooxml/package_error.hpp"
#include "ooxml/writer_test_support.hpp"

#include <gtest/gtest.h>

namespace {

using namespace ooxml;

std::unique_ptr<pugi::xml_document> Write(const std::vector<CellComment>& comments) {
    SheetDocument sheet;
    sheet.comments = comments;
    return writer_test::WriteSheetPart(WriteCommentsPart, sheet);
}

CellComment Comment(uint32_t row, uint32_t column, std::string author, std::string text) {
    CellComment comment;
    comment.row = row;
    comment.column = column;
    comment.author = std::move(author);
    comment.text.text = std::move(text);
    return comment;
}

TEST(CommentsPart, AuthorsAreListedOnceInTheOrderTheyFirstAppear) {
    auto xml = Write({Comment(1, 1, "Bob", "a"), Comment(2, 1, "Ann", "b"), Comment(3, 1, "Bob", "c")});
    const pugi::xml_node root = xml->child("comments");
    std::vector<std::string> authors;
    for (const pugi::xml_node author : root.child("authors").children("author")) {
        authors.emplace_back(author.child_value());
    }
    EXPECT_EQ(authors, (std::vector<std::string>{"Bob", "Ann"}));
    std::vector<int> ids;
    for (const pugi::xml_node comment : root.child("commentList").children("comment")) {
        ids.push_back(comment.attribute("authorId").as_int());
    }
    EXPECT_EQ(ids, (std::vector<int>{0, 1, 0}));
}

TEST(CommentsPart, CommentsReferToTheirCellsInTheSheetsOrder) {
    auto xml = Write({Comment(2, 2, "", "Some text"), Comment(17, 4, "", "More text"), Comment(1, 16384, "", "edge")});
    std::vector<std::string> references;
    for (const pugi::xml_node comment : xml->child("comments").child("commentList").children("comment")) {
        references.emplace_back(comment.attribute("ref").value());
    }
    EXPECT_EQ(references, (std::vector<std::string>{"B2", "D17", "XFD1"}));
    const pugi::xml_node first = xml->child("comments").child("commentList").child("comment");
    EXPECT_STREQ(first.child("text").child_value("t"), "Some text");
    EXPECT_FALSE(first.child("text").child("r"));
}

TEST(CommentsPart, RichTextRunsListTheirFontInTheOrderExcelWritesIt) {
    Font font;
    font.name = "Tahoma";
    font.size = 9;
    font.bold = true;
    font.italic = true;
    font.strike = true;
    font.underline = "double";
    font.vertAlign = "superscript";
    font.color = Color{Color::Kind::Indexed, 0, 81, 0.0};
    font.family = 2;
    font.scheme = "minor";
    CellComment comment = Comment(1, 1, "Ann", "Ann:\nnote");
    comment.text.runs = {TextRun{"Ann:", font}, TextRun{"\nnote", std::nullopt}};
    auto xml = Write({comment});
    const pugi::xml_node text = xml->child("comments").child("commentList").child("comment").child("text");
    const pugi::xml_node properties = text.child("r").child("rPr");
    std::vector<std::string> order;
    for (const pugi::xml_node property : properties.children()) {
        order.emplace_back(property.name());
    }
    // As in Excel's own comments parts: <b/><sz val="9"/><color indexed="81"/><rFont val="Tahoma"/>...
    EXPECT_EQ(order, (std::vector<std::string>{"b", "i", "strike", "u", "vertAlign", "sz", "color", "rFont", "family",
                                               "scheme"}));
    EXPECT_STREQ(properties.child("rFont").attribute("val").value(), "Tahoma");
    EXPECT_STREQ(properties.child("color").attribute("indexed").value(), "81");
    EXPECT_STREQ(properties.child("sz").attribute("val").value(), "9");
    EXPECT_STREQ(text.child("r").child_value("t"), "Ann:");
    const pugi::xml_node second = text.child("r").next_sibling("r");
    EXPECT_FALSE(second.child("rPr"));
    EXPECT_STREQ(second.child("t").attribute("xml:space").value(), "preserve");
    EXPECT_STREQ(second.child_value("t"), "\nnote");
}

TEST(CommentsPart, RefusesACommentOutsideTheSheet) {
    for (const auto& [row, column] : {std::pair<uint32_t, uint32_t>{0, 1}, {1, 0}, {1048577, 1}, {1, 16385}}) {
        EXPECT_THROW(Write({Comment(row, column, "", "x")}), PackageError) << row << "," << column;
    }
}

}  // namespace
