#include "ooxml/worksheet/carried_worksheet_repair.hpp"

#include "ooxml/carried/carried_attributes.hpp"
#include "ooxml/reference/cell_reference_reader.hpp"
#include "ooxml/xml/xml_node_access.hpp"
#include "ooxml/xml/xml_part_parser.hpp"

#include <pugixml.hpp>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace ooxml {

namespace {

constexpr std::size_t kMaxHyperlinks = 65530;
constexpr std::size_t kMaxHyperlinkAddress = 2079;
constexpr std::size_t kMaxListCharacters = 255;

// Excel counts characters in UTF-16 units.
std::size_t Utf16Units(std::string_view text) {
    std::size_t units = 0;
    for (const char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        units += (byte & 0xC0) != 0x80 ? 1 : 0;  // a character starts
        units += byte >= 0xF0 ? 1 : 0;           // beyond the first plane: two units
    }
    return units;
}

std::string_view WithoutDollar(std::string_view text) {
    return text.starts_with('$') ? text.substr(1) : text;
}

// "C" or "$C" within the sheet's columns; "7" or "$7" within its rows.
bool IsColumn(std::string_view text) {
    text = WithoutDollar(text);
    uint32_t column = 0;
    for (const char c : text) {
        const char upper = c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
        if (upper < 'A' || upper > 'Z' || column > MaxColumnIndex) {
            return false;
        }
        column = column * 26 + static_cast<uint32_t>(upper - 'A' + 1);
    }
    return column >= 1 && column <= MaxColumnIndex;
}

bool IsRow(std::string_view text) {
    text = WithoutDollar(text);
    uint32_t row = 0;
    for (const char c : text) {
        if (c < '0' || c > '9' || row > MaxRowIndex) {
            return false;
        }
        row = row * 10 + static_cast<uint32_t>(c - '0');
    }
    return row >= 1 && row <= MaxRowIndex;
}

// "B2" or "A1:C4"; where whole lines are allowed also "A:C" and "2:5".
bool IsRange(std::string_view text, bool wholeLines) {
    if (ParseCellBlock(text)) {
        return true;
    }
    const std::size_t colon = text.find(':');
    if (!wholeLines || colon == std::string_view::npos) {
        return false;
    }
    const std::string_view first = text.substr(0, colon);
    const std::string_view last = text.substr(colon + 1);
    return (IsColumn(first) && IsColumn(last)) || (IsRow(first) && IsRow(last));
}

// A space-separated list of ranges, every one of them valid.
bool AreRanges(std::string_view list, bool wholeLines) {
    std::size_t at = 0;
    while (at < list.size()) {
        const std::size_t end = std::min(list.find(' ', at), list.size());
        if (end > at && !IsRange(list.substr(at, end - at), wholeLines)) {
            return false;
        }
        at = end + 1;
    }
    return true;
}

// A list validation whose values, written in the rule itself ("a,b,c" in quotes) rather than taken
// from cells, pass the 255 characters Excel takes.
bool ListsTooMuch(pugi::xml_node validation) {
    if (AttributeText(validation, "type") != "list") {
        return false;
    }
    std::string_view formula = FirstChild(validation, "formula1").child_value();
    if (!formula.starts_with('"')) {
        return false;
    }
    formula.remove_prefix(1);
    if (formula.ends_with('"')) {
        formula.remove_suffix(1);
    }
    return Utf16Units(formula) > kMaxListCharacters;
}

// The items of a list of them.
std::string_view ItemName(std::string_view list) {
    if (list == "hyperlinks") {
        return "hyperlink";
    }
    return list == "dataValidations" ? "dataValidation" : "cfRule";
}

class CarriedWorksheetRepair {
public:
    CarriedWorksheetRepair(CarriedWorksheet& carried, std::size_t differentialFormats)
        : carried_(carried), differentialFormats_(differentialFormats) {
        for (const Relationship& relationship : carried.worksheet.relationships) {
            if (relationship.external) {
                addressLengths_.emplace(relationship.id, Utf16Units(relationship.target));
            }
        }
    }

    void Run() {
        std::vector<CarriedElement>& elements = carried_.worksheet.elements;
        std::erase_if(elements, [this](CarriedElement& element) { return !Repair(element); });
        std::erase_if(carried_.worksheet.relationships, [this](const Relationship& relationship) {
            return droppedLinks_.count(relationship.id) != 0 && keptLinks_.count(relationship.id) == 0;
        });
    }

private:
    // Repairs the element in place; false when nothing of it is left.
    bool Repair(CarriedElement& element) {
        if (element.name != "hyperlinks" && element.name != "dataValidations" &&
            element.name != "conditionalFormatting") {
            return true;
        }
        pugi::xml_document document;
        if (!document.load_string(element.xml.c_str(), XmlPartParseOptions)) {
            return true;
        }
        const pugi::xml_node root = document.document_element();
        if (element.name == "conditionalFormatting" && !AreRanges(AttributeText(root, "sqref"), true)) {
            return false;
        }
        if (Drop(element.name, root) == 0) {
            return true;
        }
        std::size_t items = 0;
        ForEachChild(root, ItemName(element.name), [&items](pugi::xml_node) { ++items; });
        if (pugi::xml_attribute count = root.attribute("count")) {
            count.set_value(static_cast<long long>(items));
        }
        element.xml = ElementMarkup(root);
        return items != 0;
    }

    std::size_t Drop(std::string_view list, pugi::xml_node root) {
        if (list == "hyperlinks") {
            return DropHyperlinks(root);
        }
        return list == "dataValidations" ? DropValidations(root) : DropRules(root);
    }

    std::size_t DropHyperlinks(pugi::xml_node hyperlinks) {
        std::vector<pugi::xml_node> gone;
        std::size_t kept = 0;
        ForEachChild(hyperlinks, "hyperlink", [&](pugi::xml_node hyperlink) {
            const std::string id(AttributeText(hyperlink, "id"));
            if (kept == kMaxHyperlinks || !AreRanges(AttributeText(hyperlink, "ref"), false) || TooLong(id)) {
                gone.push_back(hyperlink);
                droppedLinks_.insert(id);
            } else {
                ++kept;
                keptLinks_.insert(id);
            }
        });
        return Remove(gone);
    }

    bool TooLong(const std::string& id) const {
        const auto found = addressLengths_.find(id);
        return found != addressLengths_.end() && found->second > kMaxHyperlinkAddress;
    }

    static std::size_t DropValidations(pugi::xml_node validations) {
        std::vector<pugi::xml_node> gone;
        ForEachChild(validations, "dataValidation", [&gone](pugi::xml_node validation) {
            if (!AreRanges(AttributeText(validation, "sqref"), true) || ListsTooMuch(validation)) {
                gone.push_back(validation);
            }
        });
        return Remove(gone);
    }

    std::size_t DropRules(pugi::xml_node conditionalFormatting) const {
        std::vector<pugi::xml_node> gone;
        ForEachChild(conditionalFormatting, "cfRule", [&](pugi::xml_node rule) {
            const std::string_view id = AttributeText(rule, "dxfId");
            const std::optional<uint32_t> index = ParseUnsigned(id);
            if (!id.empty() && (!index || *index >= differentialFormats_)) {
                gone.push_back(rule);
            }
        });
        return Remove(gone);
    }

    static std::size_t Remove(const std::vector<pugi::xml_node>& nodes) {
        for (const pugi::xml_node node : nodes) {
            node.parent().remove_child(node);
        }
        return nodes.size();
    }

    CarriedWorksheet& carried_;
    std::size_t differentialFormats_;
    std::unordered_map<std::string, std::size_t> addressLengths_;  // of the external targets, by id
    std::unordered_set<std::string> droppedLinks_;
    std::unordered_set<std::string> keptLinks_;
};

}  // namespace

void DropWhatExcelRepairs(CarriedWorksheet& carried, std::size_t differentialFormats) {
    CarriedWorksheetRepair(carried, differentialFormats).Run();
}

}  // namespace ooxml
