#include "support/sheet_services.hpp"

#include "support/support_services.hpp"

#include <excel/application.hpp>
#include <excel/automation_error.hpp>
#include <excel/sheets.hpp>
#include <excel/workbook.hpp>
#include <excel/worksheet.hpp>

#include <charconv>
#include <unordered_set>
#include <string_view>

namespace vos {

namespace {

constexpr size_t MaxSheetNameUnits = 31;  // Excel's limit, in UTF-16 code units
constexpr std::string_view NameForEmptyWish = "Report";
constexpr std::string_view ReservedSheetName = "History";

bool IsForbiddenInSheetName(unsigned char c) {
    return c < 0x20 || std::string_view(":\\/?*[]").find(static_cast<char>(c)) != std::string_view::npos;
}

// Bytes of the UTF-8 sequence that starts with this lead byte.
size_t SequenceLength(unsigned char lead) {
    if (lead >= 0xF0)
        return 4;
    if (lead >= 0xE0)
        return 3;
    if (lead >= 0xC0)
        return 2;
    return 1;
}

// The longest prefix of the text that takes at most maxUnits UTF-16 code units; characters
// beyond the basic plane take two, as Excel counts them.
std::string_view CutToUtf16Units(std::string_view text, size_t maxUnits) {
    size_t units = 0;
    size_t position = 0;
    while (position < text.size()) {
        const size_t length = SequenceLength(static_cast<unsigned char>(text[position]));
        const size_t characterUnits = length == 4 ? 2 : 1;
        if (units + characterUnits > maxUnits || position + length > text.size())
            break;
        units += characterUnits;
        position += length;
    }
    return text.substr(0, position);
}

std::string_view WithoutEndApostrophes(std::string_view text) {
    while (!text.empty() && text.front() == '\'')
        text.remove_prefix(1);
    while (!text.empty() && text.back() == '\'')
        text.remove_suffix(1);
    return text;
}

std::string CleanedSheetName(const std::string& wantedName) {
    std::string cleaned = wantedName;
    for (char& c : cleaned) {
        if (IsForbiddenInSheetName(static_cast<unsigned char>(c)))
            c = '_';
    }
    std::string_view name = WithoutEndApostrophes(CutToUtf16Units(WithoutEndApostrophes(cleaned), MaxSheetNameUnits));
    return name.empty() ? std::string(NameForEmptyWish) : std::string(name);
}

std::string UpperCaseAscii(std::string_view text) {
    std::string upper(text);
    for (char& c : upper) {
        if (c >= 'a' && c <= 'z')
            c = static_cast<char>(c - 'a' + 'A');
    }
    return upper;
}

bool IsAsciiLetter(char c) {
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
}

bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

// Whether a formula could read the name as a cell reference: "AB12" in A1 style, or "R", "C",
// "R1", "RC", "R1C1" in R1C1 style. Erring towards quoting is harmless.
bool ReadsAsCellReference(std::string_view name) {
    size_t letters = 0;
    while (letters < name.size() && IsAsciiLetter(name[letters]))
        ++letters;
    if (letters >= 1 && letters <= 3 && letters < name.size()) {
        bool digitsOnly = true;
        for (size_t i = letters; i < name.size(); ++i)
            digitsOnly = digitsOnly && IsDigit(name[i]);
        if (digitsOnly)
            return true;
    }
    size_t position = 0;
    auto skipPart = [&](char upper, char lower) {
        if (position < name.size() && (name[position] == upper || name[position] == lower)) {
            ++position;
            while (position < name.size() && IsDigit(name[position]))
                ++position;
            return true;
        }
        return false;
    };
    const bool row = skipPart('R', 'r');
    const bool column = skipPart('C', 'c');
    return (row || column) && position == name.size();
}

bool SheetNameNeedsQuotes(std::string_view name) {
    if (name.empty() || IsDigit(name.front()))
        return true;
    for (char c : name) {
        if (!IsAsciiLetter(c) && !IsDigit(c) && c != '_' && c != '.')
            return true;
    }
    return ReadsAsCellReference(name);
}

}  // namespace

std::string SheetServices::MakeValidSheetName(const std::shared_ptr<excel::Workbook>& workbook,
                                              const std::string& wantedName) const {
    const std::string base = CleanedSheetName(wantedName);
    // The worksheets' names, folded to upper case once, so that finding the next free number costs
    // one pass over the sheets rather than one lookup per number tried. Excel has the last word on
    // a candidate, as it also folds the case of letters beyond ASCII, and it alone knows the names
    // of chart sheets, which the object model gives no Worksheet for.
    std::unordered_set<std::string> namesInUse{UpperCaseAscii(ReservedSheetName)};
    const auto sheets = workbook->Worksheets();
    for (int32_t i = 1; i <= sheets->Count(); ++i)
        namesInUse.insert(UpperCaseAscii(sheets->Item(i)->Name()));
    const auto isFree = [&](const std::string& candidate) {
        return !namesInUse.contains(UpperCaseAscii(candidate)) && !WorkbookHasSheet(workbook, candidate);
    };
    if (isFree(base))
        return base;
    for (int number = 2;; ++number) {
        const std::string suffix = " (" + std::to_string(number) + ")";
        std::string candidate(CutToUtf16Units(base, MaxSheetNameUnits - suffix.size()));
        candidate += suffix;
        if (isFree(candidate))
            return candidate;
    }
}

bool SheetServices::WorkbookHasSheet(const std::shared_ptr<excel::Workbook>& workbook,
                                     const std::string& sheetName) const {
    try {
        return workbook->Sheets(sheetName) != nullptr;
    } catch (const excel::AutomationError& error) {
        // A chart sheet or another sheet that is not a worksheet is a type mismatch, yet it is there.
        return error.code() == excel::hresult::TypeMismatch;
    }
}

void SheetServices::DeleteSheetQuietly(const std::shared_ptr<excel::Worksheet>& sheet) const {
    const auto application = sheet->Application();
    const bool displayAlerts = application->DisplayAlerts();
    application->SetDisplayAlerts(false);
    try {
        sheet->Delete();
    } catch (...) {
        application->SetDisplayAlerts(displayAlerts);
        throw;
    }
    application->SetDisplayAlerts(displayAlerts);
}

std::string SheetServices::SheetNameQualifier(const std::shared_ptr<excel::Worksheet>& sheet) const {
    const std::string name = sheet->Name();
    if (!SheetNameNeedsQuotes(name))
        return name + "!";
    return StringServices().Quoted(name, '\'') + "!";
}

int32_t SheetServices::ExcelMajorVersion(const std::shared_ptr<excel::Application>& application) const {
    const std::string version = application->Version();
    int32_t major = 0;
    std::from_chars(version.data(), version.data() + version.size(), major);
    return major;
}

}  // namespace vos
