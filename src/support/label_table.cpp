#include "support/label_table.hpp"

#include <algorithm>
#include <array>
#include <utility>

namespace vos {

namespace {

// Block 1000 English, 2000 French, 3000 Spanish, 4000 German, 5000 Japanese, 7000 Portuguese,
// 8000 Chinese, 9000 Russian; offset 0 is the date label, offset 1 the "performed by" label.
constexpr std::array<std::pair<int32_t, std::string_view>, 16> LabelStrings{{
    {1000, "Date"},
    {1001, "Performed By"},
    {2000, "Date"},
    {2001, "Effectu\u00e9 par"},
    {3000, "Fecha"},
    {3001, "Ejecutado por"},
    {4000, "Datum"},
    {4001, "Ausgef\u00fchrt durch"},
    {5000, "\u65e5\u4ed8"},
    {5001, "\u5b9f\u884c\u8005"},
    {7000, "Data"},
    {7001, "Executado por"},
    {8000, "\u65e5\u671f"},
    {8001, "\u6267\u884c\u4eba"},
    {9000, "\u0414\u0430\u0442\u0430"},
    {9001, "\u0412\u044b\u043f\u043e\u043b\u043d\u0435\u043d\u043e"},
}};

}  // namespace

std::optional<std::string_view> FindLabelString(int32_t identifier) {
    const auto found = std::find_if(LabelStrings.begin(), LabelStrings.end(),
                                    [identifier](const auto& entry) { return entry.first == identifier; });
    if (found == LabelStrings.end())
        return std::nullopt;
    return found->second;
}

}  // namespace vos
