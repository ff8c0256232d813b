#pragma once

#include "ooxml/document/carried_content.hpp"
#include "ooxml/opc/content_types_reader.hpp"
#include "ooxml/zip/zip_archive_reader.hpp"

#include <set>
#include <string>
#include <vector>

namespace ooxml {

// Reads the parts the engine does not rewrite: every part the kept relationships lead to, and the
// parts those lead to in turn, with their bytes, content types and relationship parts as they are.
// rewritten names the parts the engine writes anew (lower case), which are not carried.
class CarriedPartsReader {
public:
    CarriedPartsReader(const ZipArchiveReader& archive, const ContentTypeMap& contentTypes,
                       std::map<std::string, CarriedPart>& parts)
        : archive_(archive), contentTypes_(contentTypes), parts_(parts) {}

    void Rewritten(std::string_view partName);
    void Follow(const std::vector<Relationship>& relationships);

private:
    static std::string Key(std::string_view partName);

    const ZipArchiveReader& archive_;
    const ContentTypeMap& contentTypes_;
    std::map<std::string, CarriedPart>& parts_;
    std::set<std::string> seen_;  // lower case: rewritten parts and those already followed
};

}  // namespace ooxml
