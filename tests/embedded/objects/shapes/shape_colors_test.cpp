#include "embedded/engine_fixture.hpp"

using namespace excel;

namespace {

class ShapeColorsTest : public EngineTest {
protected:
    void SetUp() override {
        EngineTest::SetUp();
        box = sheet->Shapes()->AddTextbox(msoTextOrientationHorizontal, 0, 0, 100, 40);
    }
    std::shared_ptr<Shape> box;
};

TEST_F(ShapeColorsTest, NewTextBoxHasWhiteFillAndThinGreyOutline) {
    EXPECT_EQ(box->Fill()->Visible(), msoTrue);
    EXPECT_EQ(box->Fill()->ForeColor()->RGB(), 0xFFFFFF);
    EXPECT_EQ(box->Fill()->ForeColor()->ObjectThemeColor(), msoThemeColorLight1);
    EXPECT_EQ(box->Line()->Visible(), msoTrue);
    EXPECT_DOUBLE_EQ(box->Line()->Weight(), 0.75);
    EXPECT_EQ(box->Line()->ForeColor()->ObjectThemeColor(), msoThemeColorLight1);
    EXPECT_DOUBLE_EQ(box->Line()->ForeColor()->TintAndShade(), -0.5);
    EXPECT_EQ(box->Line()->ForeColor()->RGB(), 0x7F7F7F);
}

TEST_F(ShapeColorsTest, RgbColours) {
    box->Fill()->ForeColor()->SetRGB(0x00CCFF);
    EXPECT_EQ(box->Fill()->ForeColor()->RGB(), 0x00CCFF);
    EXPECT_EQ(box->Fill()->ForeColor()->ObjectThemeColor(), msoNotThemeColor);
    EXPECT_EQ(ErrorCodeOf([&] { box->Fill()->ForeColor()->SetRGB(0x1000000); }), kRefused);
}

TEST_F(ShapeColorsTest, ThemeColourAnswersItsResolvedRgb) {
    box->Line()->ForeColor()->SetObjectThemeColor(msoThemeColorAccent1);
    EXPECT_EQ(box->Line()->ForeColor()->ObjectThemeColor(), msoThemeColorAccent1);
    EXPECT_EQ(box->Line()->ForeColor()->RGB(), 0xC47244);  // accent1 #4472C4
    box->Line()->ForeColor()->SetObjectThemeColor(msoThemeColorDark1);
    EXPECT_EQ(box->Line()->ForeColor()->RGB(), 0x000000);
    box->Line()->ForeColor()->SetObjectThemeColor(msoThemeColorText2);
    EXPECT_EQ(box->Line()->ForeColor()->RGB(), 0x6A5444);  // dk2 #44546A
    EXPECT_EQ(ErrorCodeOf([&] { box->Line()->ForeColor()->SetObjectThemeColor(17); }), kRefused);
}

TEST_F(ShapeColorsTest, TintAndShadeDarkensOrLightens) {
    auto color = box->Fill()->ForeColor();
    color->SetObjectThemeColor(msoThemeColorAccent1);
    const int32_t plain = color->RGB();
    color->SetTintAndShade(0.5);
    EXPECT_DOUBLE_EQ(color->TintAndShade(), 0.5);
    EXPECT_GT(color->RGB() & 0xFF, plain & 0xFF);
    EXPECT_EQ(ErrorCodeOf([&] { color->SetTintAndShade(2); }), kRefused);
}

TEST_F(ShapeColorsTest, SettingColourOrWeightMakesLineVisible) {
    box->Line()->SetVisible(msoFalse);
    box->Fill()->SetVisible(msoFalse);
    EXPECT_EQ(box->Line()->Visible(), msoFalse);
    box->Line()->SetWeight(2);
    EXPECT_EQ(box->Line()->Visible(), msoTrue);
    box->Fill()->ForeColor()->SetRGB(0);
    EXPECT_EQ(box->Fill()->Visible(), msoTrue);
}

TEST_F(ShapeColorsTest, Transparency) {
    box->Fill()->SetTransparency(0.25);
    EXPECT_DOUBLE_EQ(box->Fill()->Transparency(), 0.25);
    EXPECT_EQ(ErrorCodeOf([&] { box->Fill()->SetTransparency(1.5); }), kRefused);
}

}  // namespace
