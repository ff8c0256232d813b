#include "excel/embedded/model/charts/chart_data.hpp"

#include "excel/embedded/text/utf8_text.hpp"

#include <charconv>

namespace excel::embedded {

ChartData ReferenceData(std::string reference) {
    ChartData data;
    data.kind = ChartData::Kind::Reference;
    data.reference = std::move(reference);
    return data;
}

ChartData LiteralData(std::vector<ChartValue> values) {
    ChartData data;
    data.kind = ChartData::Kind::Literal;
    data.values = std::move(values);
    return data;
}

namespace {

// A quoted text with doubled quotes inside, from its opening quote; none when it does not close.
std::optional<std::string> QuotedText(std::string_view text, std::size_t& position) {
    std::string value;
    for (++position; position < text.size(); ++position) {
        if (text[position] != '"') {
            value += text[position];
        } else if (position + 1 < text.size() && text[position + 1] == '"') {
            value += '"';
            ++position;
        } else {
            ++position;
            return value;
        }
    }
    return std::nullopt;
}

std::optional<double> Number(std::string_view text) {
    if (!text.empty() && text.front() == '+') {
        text.remove_prefix(1);
    }
    double value = 0.0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc() || end != text.data() + text.size() || text.empty()) {
        return std::nullopt;
    }
    return value;
}

}  // namespace

std::optional<std::vector<ChartValue>> ParseLiteralList(std::string_view text) {
    text = TrimSpaces(text);
    if (!text.empty() && text.front() == '=') {
        text = TrimSpaces(text.substr(1));
    }
    if (!text.empty() && text.front() == '{') {
        if (text.back() != '}') {
            return std::nullopt;
        }
        text = TrimSpaces(text.substr(1, text.size() - 2));
    }
    if (text.empty()) {
        return std::nullopt;
    }
    std::vector<ChartValue> values;
    std::size_t position = 0;
    while (true) {
        while (position < text.size() && text[position] == ' ') {
            ++position;
        }
        if (position < text.size() && text[position] == '"') {
            auto quoted = QuotedText(text, position);
            if (!quoted) {
                return std::nullopt;
            }
            values.emplace_back(std::move(*quoted));
            while (position < text.size() && text[position] == ' ') {
                ++position;
            }
        } else {
            const std::size_t end = std::min(text.find(',', position), text.size());
            const auto number = Number(TrimSpaces(text.substr(position, end - position)));
            if (!number) {
                return std::nullopt;
            }
            values.emplace_back(*number);
            position = end;
        }
        if (position == text.size()) {
            return values;
        }
        if (text[position] != ',') {
            return std::nullopt;
        }
        ++position;
    }
}

}  // namespace excel::embedded
