#include "excel/embedded/text/number_format_kind.hpp"

#include <cctype>

namespace excel::embedded {

NumberFormatKind ClassifyNumberFormat(std::string_view format) {
    if (format.empty() || format == "General") {
        return NumberFormatKind::General;
    }
    bool currency = false;
    bool text = false;
    for (size_t i = 0; i < format.size(); ++i) {
        const char c = format[i];
        if (c == '"') {
            const size_t close = format.find('"', i + 1);
            i = close == std::string_view::npos ? format.size() : close;
        } else if (c == '\\' || c == '_' || c == '*') {
            ++i;
        } else if (c == '[') {
            const size_t close = format.find(']', i + 1);
            const std::string_view inside = format.substr(i + 1, close == std::string_view::npos ? 0 : close - i - 1);
            if (inside.starts_with("$")) {
                currency = true;
            } else if (!inside.empty() && (inside[0] == 'h' || inside[0] == 'm' || inside[0] == 's')) {
                return NumberFormatKind::Date;  // elapsed time
            }
            i = close == std::string_view::npos ? format.size() : close;
        } else if (c == ';') {
            break;
        } else if (c == '$' || format.substr(i).starts_with("\xE2\x82\xAC") ||
                   format.substr(i).starts_with("\xC2\xA3")) {
            currency = true;
        } else if (c == '@') {
            text = true;
        } else {
            const char lower = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
            if (lower == 'd' || lower == 'm' || lower == 'y' || lower == 'h' || lower == 's') {
                return NumberFormatKind::Date;
            }
        }
    }
    return text ? NumberFormatKind::Text : currency ? NumberFormatKind::Currency : NumberFormatKind::Number;
}

}  // namespace excel::embedded
