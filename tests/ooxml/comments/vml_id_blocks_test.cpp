// The blocks of VML shape ids: read from a drawing's shapes and idmap, handed out to the drawings a
// workbook writes around the blocks the drawings it keeps use.

#include "ooxml/comments/vml_id_blocks.hpp"

#include <gtest/gtest.h>

namespace {

using namespace ooxml;
using Blocks = std::vector<uint32_t>;

TEST(VmlIdBlocks, AShapeIdIsANumberAfterTheVmlPrefix) {
    EXPECT_EQ(ParseVmlShapeNumber("_x0000_s1025"), 1025u);
    EXPECT_EQ(ParseVmlShapeNumber("_x0000_s4097"), 4097u);
    EXPECT_FALSE(ParseVmlShapeNumber("CheckBox1"));
    EXPECT_FALSE(ParseVmlShapeNumber("_x0000_t201"));
    EXPECT_FALSE(ParseVmlShapeNumber("_x0000_s"));
    EXPECT_FALSE(ParseVmlShapeNumber("_x0000_s12a"));
}

TEST(VmlIdBlocks, AnIdmapListsItsBlocksOnceInOrder) {
    EXPECT_EQ(ParseVmlIdBlocks("1"), Blocks{1});
    EXPECT_EQ(ParseVmlIdBlocks("3,1,2"), (Blocks{1, 2, 3}));
    EXPECT_EQ(ParseVmlIdBlocks(" 2 , 5 2"), (Blocks{2, 5}));
    EXPECT_EQ(ParseVmlIdBlocks("x,7,"), Blocks{7});
    EXPECT_EQ(ParseVmlIdBlocks("99999999"), Blocks{});  // its ids would not be 32-bit numbers
}

TEST(VmlIdBlocks, TheIdmapOfADrawingIsFoundInItsMarkupEvenWhenItIsNotXml) {
    EXPECT_EQ(FindVmlIdBlocks(R"(<xml><o:shapelayout v:ext="edit"><o:idmap v:ext="edit" data="2,3"/></o:shapelayout>)"
                              R"(<v:shape><br></v:shape></xml>)"),
              (Blocks{2, 3}));
    EXPECT_EQ(FindVmlIdBlocks("<xml><o:shapelayout>\n <o:idmap v:ext='edit'\n  data='4'/>"), Blocks{4});
    EXPECT_EQ(FindVmlIdBlocks(R"(<xml><v:shape id="_x0000_s1025"/></xml>)"), Blocks{});
}

TEST(VmlIdBlocks, ShapesAreNumberedFromEachBlockOrOnFromTheBlockBefore) {
    EXPECT_EQ(VmlShapeIds({1}, 3), (Blocks{1025, 1026, 1027}));
    EXPECT_EQ(VmlShapeIds({3}, 1), Blocks{3073});
    // 1,023 shapes fill a block; the next goes on into the block that follows, or to another's first id.
    EXPECT_EQ(VmlShapeIds({2, 3}, 1024).back(), 3072u);
    EXPECT_EQ(VmlShapeIds({2, 5}, 1024).back(), 5121u);
    EXPECT_EQ(VmlShapeIds({2}, 1024).size(), 1023u);
}

TEST(VmlIdBlocks, DrawingsTakeTheLowestFreeBlocksEnoughForTheirShapes) {
    VmlIdBlocks blocks;
    blocks.Reserve({1, 3});
    EXPECT_EQ(blocks.Take(1), Blocks{2});
    EXPECT_EQ(blocks.Take(0), Blocks{4});  // a drawing has a block even without shapes
    EXPECT_EQ(blocks.Take(1023), Blocks{5});
    EXPECT_EQ(blocks.Take(1024), (Blocks{6, 7}));
    blocks.Reserve(9);
    EXPECT_EQ(blocks.Take(2046), (Blocks{8, 10}));  // 1,023 ids in each of two blocks apart
    EXPECT_EQ(blocks.Take(2047), (Blocks{11, 12}));
    EXPECT_EQ(VmlShapeIds({11, 12}, 2047).size(), 2047u);
}

}  // namespace
