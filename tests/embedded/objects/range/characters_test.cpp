#include "embedded/engine_fixture.hpp"

using namespace excel;

TEST_F(EngineTest, CharactersTextAndCount) {
    At("A1")->SetValue("Hello world");
    EXPECT_EQ(At("A1")->Characters(1, 5)->Text(), "Hello");
    EXPECT_EQ(At("A1")->Characters(7)->Text(), "world");
    EXPECT_EQ(At("A1")->Characters()->Count(), 11);
    EXPECT_EQ(At("A1")->Characters(9, 10)->Count(), 3);
}

TEST_F(EngineTest, CharactersCountCodePointsNotBytes) {
    At("A1")->SetValue("Größe €5");
    EXPECT_EQ(At("A1")->Characters()->Count(), 8);
    EXPECT_EQ(At("A1")->Characters(3, 2)->Text(), "öß");
    EXPECT_EQ(At("A1")->Characters(7, 2)->Text(), "€5");
}

TEST_F(EngineTest, CharactersFontSplitsRuns) {
    At("A1")->SetValue("Bold and plain");
    At("A1")->Characters(1, 4)->Font()->SetBold(true);
    EXPECT_EQ(At("A1")->Characters(1, 4)->Font()->Bold(), Variant(true));
    EXPECT_EQ(At("A1")->Characters(6, 3)->Font()->Bold(), Variant(false));
    EXPECT_TRUE(At("A1")->Characters(3, 4)->Font()->Bold().IsNull());
    EXPECT_EQ(At("A1")->Value(), Variant("Bold and plain"));
    // The cell itself keeps its font.
    EXPECT_EQ(At("A1")->Font()->Bold(), Variant(false));
}

TEST_F(EngineTest, CharactersInsertReplacesAndKeepsRuns) {
    At("A1")->SetValue("Bold and plain");
    At("A1")->Characters(1, 4)->Font()->SetColor(0x0000FF);
    At("A1")->Characters(1, 4)->Insert("Red");
    EXPECT_EQ(At("A1")->Value(), Variant("Red and plain"));
    EXPECT_EQ(At("A1")->Characters(1, 3)->Font()->Color(), Variant(static_cast<double>(0x0000FF)));
    EXPECT_EQ(At("A1")->Characters(5, 3)->Font()->Color(), Variant(0.0));
    At("A1")->Characters(4, 4)->Delete();
    EXPECT_EQ(At("A1")->Value(), Variant("Red plain"));
}
