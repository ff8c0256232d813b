#include "table/table_layout_fixture.hpp"

namespace {

// A workbook's language and theme switch, and the title and body sizes its tables get.
struct FontSizeCase {
    const char* name;
    int32_t language;
    bool themed;
    double titleSize;
    double bodySize;
};

void PrintTo(const FontSizeCase& sizes, std::ostream* out) {
    *out << sizes.name;
}

const FontSizeCase Cases[] = {
    {"PlainEnglish", 9, false, 10.0, 8.0},  {"PlainChinese", 4, false, 12.0, 10.0},
    {"PlainFrench", 12, false, 10.0, 8.0},  {"ThemedEnglish", 9, true, 10.0, 8.0},
    {"ThemedChinese", 4, true, 12.0, 10.0}, {"ThemedFrench", 12, true, 10.0, 8.0},
};

class TableFontSizeTest : public TableLayoutTest, public ::testing::WithParamInterface<FontSizeCase> {};

}  // namespace

TEST_P(TableFontSizeTest, TheLanguageChoosesTheTitleAndBodySizes) {
    const FontSizeCase& sizes = GetParam();
    if (sizes.themed)
        UseThemes(sizes.language);
    else
        UseLanguage(sizes.language);
    ExpectFontSizes(*AddTableWithEveryPart(), sizes.titleSize, sizes.bodySize);
}

INSTANTIATE_TEST_SUITE_P(Languages, TableFontSizeTest, ::testing::ValuesIn(Cases),
                         [](const ::testing::TestParamInfo<FontSizeCase>& testCase) {
                             return std::string(testCase.param.name);
                         });
