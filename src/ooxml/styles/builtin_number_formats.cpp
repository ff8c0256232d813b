#include "ooxml/styles/builtin_number_formats.hpp"

#include <array>
#include <utility>

namespace ooxml {

namespace {

struct BuiltinFormat {
    uint32_t id;
    std::string_view code;
};

// The first entry of an id is its code; later entries with the same id are other spellings of it
// that also mean that id (the file format's own list writes a few of them differently).
constexpr std::array kBuiltinFormats{
    BuiltinFormat{0, "General"},
    BuiltinFormat{1, "0"},
    BuiltinFormat{2, "0.00"},
    BuiltinFormat{3, "#,##0"},
    BuiltinFormat{4, "#,##0.00"},
    BuiltinFormat{9, "0%"},
    BuiltinFormat{10, "0.00%"},
    BuiltinFormat{11, "0.00E+00"},
    BuiltinFormat{12, "# ?/?"},
    BuiltinFormat{13, "# ?\?/?\?"},
    BuiltinFormat{14, "m/d/yyyy"},
    BuiltinFormat{14, "mm-dd-yy"},
    BuiltinFormat{15, "d-mmm-yy"},
    BuiltinFormat{16, "d-mmm"},
    BuiltinFormat{17, "mmm-yy"},
    BuiltinFormat{18, "h:mm AM/PM"},
    BuiltinFormat{19, "h:mm:ss AM/PM"},
    BuiltinFormat{20, "h:mm"},
    BuiltinFormat{21, "h:mm:ss"},
    BuiltinFormat{22, "m/d/yyyy h:mm"},
    BuiltinFormat{22, "m/d/yy h:mm"},
    BuiltinFormat{37, "#,##0_);(#,##0)"},
    BuiltinFormat{37, "#,##0 ;(#,##0)"},
    BuiltinFormat{38, "#,##0_);[Red](#,##0)"},
    BuiltinFormat{38, "#,##0 ;[Red](#,##0)"},
    BuiltinFormat{39, "#,##0.00_);(#,##0.00)"},
    BuiltinFormat{39, "#,##0.00;(#,##0.00)"},
    BuiltinFormat{40, "#,##0.00_);[Red](#,##0.00)"},
    BuiltinFormat{40, "#,##0.00;[Red](#,##0.00)"},
    BuiltinFormat{41, R"(_(* #,##0_);_(* \(#,##0\);_(* "-"_);_(@_))"},
    BuiltinFormat{42, R"(_("$"* #,##0_);_("$"* \(#,##0\);_("$"* "-"_);_(@_))"},
    BuiltinFormat{43, R"(_(* #,##0.00_);_(* \(#,##0.00\);_(* "-"??_);_(@_))"},
    BuiltinFormat{44, R"(_("$"* #,##0.00_);_("$"* \(#,##0.00\);_("$"* "-"??_);_(@_))"},
    BuiltinFormat{45, "mm:ss"},
    BuiltinFormat{46, "[h]:mm:ss"},
    BuiltinFormat{47, "mm:ss.0"},
    BuiltinFormat{48, "##0.0E+0"},
    BuiltinFormat{49, "@"},
};

}  // namespace

std::optional<uint32_t> BuiltinNumberFormatId(std::string_view code) {
    for (const BuiltinFormat& format : kBuiltinFormats) {
        if (format.code == code) {
            return format.id;
        }
    }
    return std::nullopt;
}

std::string_view BuiltinNumberFormatCode(uint32_t id) {
    for (const BuiltinFormat& format : kBuiltinFormats) {
        if (format.id == id) {
            return format.code;
        }
    }
    return {};
}

}  // namespace ooxml
