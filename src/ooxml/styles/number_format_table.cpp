#include "ooxml/styles/number_format_table.hpp"

#include "ooxml/styles/builtin_number_formats.hpp"

#include <algorithm>
#include <optional>

namespace ooxml {

NumberFormatTable::NumberFormatTable(const std::map<uint32_t, std::string>& declared)
    : declared_(declared),
      nextId_(declared.empty() ? kFirstCustomNumberFormatId
                               : std::max(kFirstCustomNumberFormatId, declared.rbegin()->first + 1)) {
    // Where a file declares one code twice, the lower id serves the cells that are given it now.
    for (const auto& [id, code] : declared_) {
        ids_.try_emplace(code, id);
    }
}

uint32_t NumberFormatTable::Intern(const std::string& code) {
    if (const auto found = ids_.find(code); found != ids_.end()) {
        return found->second;
    }
    if (const std::optional<uint32_t> builtin = BuiltinNumberFormatId(code); builtin && !declared_.contains(*builtin)) {
        return *builtin;
    }
    const uint32_t id = nextId_++;
    declared_.emplace(id, code);
    ids_.emplace(code, id);
    return id;
}

void NumberFormatTable::Write(XmlWriter& xml) const {
    if (declared_.empty()) {
        return;
    }
    xml.StartElement("numFmts");
    xml.Attribute("count", declared_.size());
    for (const auto& [id, code] : declared_) {
        xml.StartElement("numFmt");
        xml.Attribute("numFmtId", id);
        xml.Attribute("formatCode", code);
        xml.EndElement();
    }
    xml.EndElement();
}

}  // namespace ooxml
