#include "support/localized_label.hpp"

#include "support/checked_sum.hpp"
#include "support/label_table.hpp"

#include <excel/automation_error.hpp>

#include <array>

namespace vos {

namespace {

constexpr int32_t ResourceNotFoundError = 326;

int32_t LabelBlockBase(int32_t languageId) {
    switch (languageId) {
        case 4:  // Chinese
            return 8000;
        case 7:  // German
            return 4000;
        case 10:  // Spanish
            return 3000;
        case 12:  // French
            return 2000;
        case 16:  // Italian: a block with no strings
            return 6000;
        case 17:  // Japanese
            return 5000;
        case 22:  // Portuguese
            return 7000;
        case 25:  // Russian
            return 9000;
        default:
            return 1000;
    }
}

void ReplaceAll(std::string& text, std::string_view marker, const std::string& replacement) {
    for (size_t position = text.find(marker); position != std::string::npos;
         position = text.find(marker, position + replacement.size())) {
        text.replace(position, marker.size(), replacement);
    }
}

char UpperAscii(char c) {
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}

// Replaces "{CR}" matched without regard to case by CR LF.
void ReplaceLineBreakMarkers(std::string& text) {
    constexpr std::string_view marker = "{CR}";
    std::string result;
    result.reserve(text.size());
    for (size_t position = 0; position < text.size();) {
        bool matches = position + marker.size() <= text.size();
        for (size_t i = 0; matches && i < marker.size(); ++i)
            matches = UpperAscii(text[position + i]) == marker[i];
        if (matches) {
            result += "\r\n";
            position += marker.size();
        } else {
            result += text[position++];
        }
    }
    text = std::move(result);
}

}  // namespace

std::string GetLocalizedLabel(int16_t labelOffset, int32_t languageId, const std::optional<excel::Variant>& argument0,
                              const std::optional<excel::Variant>& argument1,
                              const std::optional<excel::Variant>& argument2) {
    const int32_t identifier = CheckedSum(labelOffset, LabelBlockBase(languageId));
    const auto found = FindLabelString(identifier);
    if (!found)
        excel::ThrowRuntimeError(ResourceNotFoundError);
    return ExpandLabelMarkers(std::string(*found), argument0, argument1, argument2);
}

std::string ExpandLabelMarkers(std::string text, const std::optional<excel::Variant>& argument0,
                               const std::optional<excel::Variant>& argument1,
                               const std::optional<excel::Variant>& argument2) {
    const std::array<const std::optional<excel::Variant>*, 3> arguments{&argument0, &argument1, &argument2};
    const std::array<std::string_view, 3> markers{"{0}", "{1}", "{2}"};
    for (size_t i = 0; i < arguments.size(); ++i) {
        if (arguments[i]->has_value())
            ReplaceAll(text, markers[i], (*arguments[i])->ToString());
    }
    ReplaceLineBreakMarkers(text);
    return text;
}

}  // namespace vos
