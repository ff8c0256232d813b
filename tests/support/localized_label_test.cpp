#include "support/localized_label.hpp"

#include <excel/automation_error.hpp>

#include <gtest/gtest.h>

#include <tuple>

namespace {

using vos::DateLabel;
using vos::GetLocalizedLabel;
using vos::PerformedByLabel;

class EveryLanguage : public ::testing::TestWithParam<std::tuple<int32_t, const char*, const char*>> {};

}  // namespace

TEST_P(EveryLanguage, ReadsBothLabelsOfTheLanguage) {
    const auto& [language, date, performedBy] = GetParam();
    EXPECT_EQ(GetLocalizedLabel(DateLabel, language), date);
    EXPECT_EQ(GetLocalizedLabel(PerformedByLabel, language), performedBy);
}

INSTANTIATE_TEST_SUITE_P(LocalizedLabel, EveryLanguage,
                         ::testing::Values(std::tuple{9, "Date", "Performed By"},
                                           std::tuple{12, "Date", "Effectu\u00e9 par"},
                                           std::tuple{10, "Fecha", "Ejecutado por"},
                                           std::tuple{7, "Datum", "Ausgef\u00fchrt durch"},
                                           std::tuple{17, "\u65e5\u4ed8", "\u5b9f\u884c\u8005"},
                                           std::tuple{22, "Data", "Executado por"},
                                           std::tuple{4, "\u65e5\u671f", "\u6267\u884c\u4eba"},
                                           std::tuple{25, "\u0414\u0430\u0442\u0430",
                                                      "\u0412\u044b\u043f\u043e\u043b\u043d\u0435\u043d\u043e"}));

TEST(LocalizedLabel, FrenchPerformedBy) {
    EXPECT_EQ(GetLocalizedLabel(PerformedByLabel, 12), "Effectu\u00e9 par");
}

TEST(LocalizedLabel, UnknownLanguagesAndLocaleIdsReadEnglish) {
    for (int32_t language : {9, 0, 1033, -1, 99}) {
        EXPECT_EQ(GetLocalizedLabel(DateLabel, language), "Date") << language;
        EXPECT_EQ(GetLocalizedLabel(PerformedByLabel, language), "Performed By") << language;
    }
}

TEST(LocalizedLabel, ItalianHasNoLabelsAndFailsWithResourceNotFound) {
    for (int16_t offset : {DateLabel, PerformedByLabel}) {
        try {
            GetLocalizedLabel(offset, 16);
            ADD_FAILURE() << "expected Resource not found";
        } catch (const excel::AutomationError& error) {
            EXPECT_EQ(error.code(), excel::hresult::ResourceNotFound);
        }
    }
}

TEST(LocalizedLabel, AnOffsetOutsideTheBlockFindsNoString) {
    try {
        GetLocalizedLabel(2, 9);
        ADD_FAILURE() << "expected Resource not found";
    } catch (const excel::AutomationError& error) {
        EXPECT_EQ(error.code(), excel::hresult::ResourceNotFound);
    }
}

TEST(LabelMarkers, LineBreakMarkersInAnyCapitalisationBecomeCrLf) {
    EXPECT_EQ(vos::ExpandLabelMarkers("a{CR}b{cr}c{Cr}d{cR}"), "a\r\nb\r\nc\r\nd\r\n");
    EXPECT_EQ(vos::ExpandLabelMarkers("{CR"), "{CR");
}

TEST(LabelMarkers, ArgumentMarkersAreReplacedOnlyWhenTheirArgumentIsGiven) {
    EXPECT_EQ(vos::ExpandLabelMarkers("{0} and {0}"), "{0} and {0}");
    EXPECT_EQ(vos::ExpandLabelMarkers("{0} and {0}", excel::Variant("x")), "x and x");
    EXPECT_EQ(vos::ExpandLabelMarkers("{0}/{1}/{2}", excel::Variant("a")), "a/{1}/{2}");
    EXPECT_EQ(vos::ExpandLabelMarkers("{0}/{1}/{2}", excel::Variant("a"), excel::Variant(2.5)), "a/2.5/{2}");
    EXPECT_EQ(vos::ExpandLabelMarkers("{0}/{1}/{2}", excel::Variant("a"), excel::Variant("b"), excel::Variant(true)),
              "a/b/True");
}

TEST(LabelMarkers, ArgumentMarkersMatchCaseSensitively) {
    EXPECT_EQ(vos::ExpandLabelMarkers("{0}{CR}", excel::Variant("v")), "v\r\n");
    EXPECT_EQ(vos::ExpandLabelMarkers("{ 0}", excel::Variant("v")), "{ 0}");
}

TEST(LabelMarkers, AnEmptyArgumentIsStillGiven) {
    EXPECT_EQ(vos::ExpandLabelMarkers("[{0}]", excel::Variant("")), "[]");
    EXPECT_EQ(vos::ExpandLabelMarkers("[{0}]", excel::Variant()), "[]");
}
