#pragma once

#include "ooxml/xml/xml_writer.hpp"

#include <cstdint>
#include <map>
#include <string>
#include <unordered_map>

namespace ooxml {

// The number formats of a styles part, by id. The formats a file declared keep their ids, whether
// a cell still uses them or not. A built-in code takes its built-in id unless the file declared a
// format of its own under that id; any other code takes the next free id.
class NumberFormatTable {
public:
    explicit NumberFormatTable(const std::map<uint32_t, std::string>& declared);

    uint32_t Intern(const std::string& code);
    // Writes <numFmts>, or nothing when no format is declared.
    void Write(XmlWriter& xml) const;

private:
    std::map<uint32_t, std::string> declared_;
    std::unordered_map<std::string, uint32_t> ids_;
    uint32_t nextId_;
};

}  // namespace ooxml
