#include "excel/embedded/objects/book/expression_evaluator.hpp"

#include "excel/embedded/model/names/defined_name_rules.hpp"
#include "excel/embedded/model/workbook_model.hpp"
#include "excel/embedded/objects/range/cell_value.hpp"
#include "excel/embedded/objects/range/range_view.hpp"
#include "excel/embedded/text/text_entry.hpp"

#include "excel/embedded/text/utf8_text.hpp"

#include <excel/constants.hpp>

#include <cctype>
#include <cstdlib>
#include <string>

namespace excel::embedded {

namespace {

constexpr int maxNameDepth = 32;

Variant Error(int32_t number) {
    return Variant(ErrorValue{ErrorValueCode(number)});
}

std::optional<std::string> QuotedText(std::string_view text) {
    if (text.size() < 2 || text.front() != '"' || text.back() != '"') {
        return std::nullopt;
    }
    std::string result;
    for (size_t i = 1; i + 1 < text.size(); ++i) {
        if (text[i] == '"') {
            if (i + 2 >= text.size() || text[i + 1] != '"') {
                return std::nullopt;
            }
            ++i;
        }
        result += text[i];
    }
    return result;
}

std::optional<double> Number(std::string_view text) {
    if (text.empty() || !(std::isdigit(static_cast<unsigned char>(text.front())) || text.front() == '.' ||
                          text.front() == '-' || text.front() == '+')) {
        return std::nullopt;
    }
    const std::string copy(text);
    char* end = nullptr;
    const double value = std::strtod(copy.c_str(), &end);
    return end == copy.c_str() + copy.size() ? std::optional<double>(value) : std::nullopt;
}

std::string Uppercase(std::string_view text) {
    std::string result(text);
    for (char& c : result) {
        c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
    }
    return result;
}

Variant Evaluate(const std::shared_ptr<WorksheetModel>& sheet, std::string_view expression, int depth) {
    std::string_view text = TrimSpaces(expression);
    if (text.starts_with("=")) {
        text = TrimSpaces(text.substr(1));
    }
    if (text.empty()) {
        return Error(xlErrValue);
    }
    if (auto quoted = QuotedText(text)) {
        return Variant(*quoted);
    }
    if (auto number = Number(text)) {
        return Variant(*number);
    }
    const std::string upper = Uppercase(text);
    if (upper == "TRUE" || upper == "FALSE") {
        return Variant(upper == "TRUE");
    }
    if (auto error = ErrorNumberFromText(text)) {
        return Error(*error);
    }
    WorkbookModel& book = sheet->Book();
    if (auto reference = ParseA1Reference(text)) {
        auto target = reference->sheet.empty() ? sheet : book.FindSheet(reference->sheet);
        if (!target) {
            return Error(xlErrRef);
        }
        return Variant(RangeView::Make(target, std::move(reference->areas)));
    }
    std::shared_ptr<DefinedNameModel> name;
    const auto bang = text.rfind('!');
    if (bang != std::string_view::npos) {
        std::string sheetName(text.substr(0, bang));
        if (sheetName.size() >= 2 && sheetName.front() == '\'' && sheetName.back() == '\'') {
            sheetName = sheetName.substr(1, sheetName.size() - 2);
        }
        const auto scope = book.FindSheet(sheetName);
        name = scope ? book.FindName(text.substr(bang + 1), scope.get()) : nullptr;
    } else {
        name = book.FindName(text, sheet.get());
        if (!name) {
            name = book.FindName(text, nullptr);
        }
    }
    if (name) {
        return depth < maxNameDepth ? Evaluate(sheet, name->formula, depth + 1) : Error(xlErrValue);
    }
    const std::string_view bare = bang == std::string_view::npos ? text : text.substr(bang + 1);
    return IsValidDefinedName(bare) ? Error(xlErrName) : Error(xlErrValue);
}

}  // namespace

Variant EvaluateExpression(const std::shared_ptr<WorksheetModel>& sheet, std::string_view expression) {
    return Evaluate(sheet, expression, 0);
}

}  // namespace excel::embedded
