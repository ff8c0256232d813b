#include "ooxml/xml/xml_part_parser.hpp"

#include "ooxml/package_error.hpp"

namespace ooxml {

void ParseXmlPart(pugi::xml_document& document, std::string& text, std::string_view partName) {
    const pugi::xml_parse_result result =
        document.load_buffer_inplace(text.data(), text.size(), XmlPartParseOptions, pugi::encoding_auto);
    if (!result) {
        throw PackageError(PackageError::Reason::Corrupt, "Unparsable XML in " + std::string(partName) + " at offset " +
                                                              std::to_string(result.offset) + ": " +
                                                              result.description());
    }
}

}  // namespace ooxml
