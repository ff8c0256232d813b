#include "worksheet/header_lines.hpp"

#include "support/ignoring_excel_errors.hpp"
#include "support/localized_label.hpp"
#include "support/support_services.hpp"
#include "support/trim_blanks.hpp"
#include "support/unit_testing_mode.hpp"
#include "worksheet/long_date_time.hpp"

#include <excel/application.hpp>

namespace vos {

namespace {

constexpr const char* UnitTestUser = "UnitTester";
constexpr const char* UnitTestDate = "<<Date>> <<Time>>";
constexpr const char* LabelDelimiter = "\t";

HeaderLine ExtraHeaderLine(std::string entry) {
    std::string label = TrimBlanks(Support().Strings().SplitFirstToken(entry, LabelDelimiter));
    return {std::move(label), std::move(entry)};
}

}  // namespace

int16_t ExtraHeaderLineCount(const excel::Variant& additionalHeaderInfo) {
    int16_t count = 0;
    IgnoringExcelErrors([&] {
        const auto& entries = additionalHeaderInfo.Array();
        count = excel::Variant(entries.UpperBound() - entries.LowerBound() + 1).ToShort();
    });
    return count;
}

HeaderLines ReadHeaderLines(excel::Application& application, int32_t language,
                            const excel::Variant& additionalHeaderInfo, int16_t extraLineCount) {
    const bool unitTesting = IsUnitTestingModeOn();
    HeaderLines lines{
        .performedBy = {GetLocalizedLabel(PerformedByLabel, language), unitTesting ? UnitTestUser : application.UserName()},
        .date = {GetLocalizedLabel(DateLabel, language), unitTesting ? UnitTestDate : CurrentLongDateTimeText()},
        .extra = {},
    };
    if (extraLineCount > 0) {
        const auto& entries = additionalHeaderInfo.Array();
        for (int32_t k = 0; k < extraLineCount; ++k)
            lines.extra.push_back(ExtraHeaderLine(entries.Get({entries.LowerBound() + k}).ToString()));
    }
    return lines;
}

}  // namespace vos
