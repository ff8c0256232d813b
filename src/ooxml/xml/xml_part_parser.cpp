#include "ooxml/xml/xml_part_parser.hpp"

#include "ooxml/package_error.hpp"

#include <new>

namespace ooxml {

void ParseXmlPart(pugi::xml_document& document, std::string& text, std::string_view partName) {
    if (!HoldsNoNul(text)) {
        throw PackageError(PackageError::Reason::Corrupt, "A NUL character in " + std::string(partName));
    }
    const pugi::xml_parse_result result =
        document.load_buffer_inplace(text.data(), text.size(), XmlPartParseOptions, pugi::encoding_auto);
    // Memory running out is no fault of the file, and is reported as such by whoever opens it.
    if (result.status == pugi::status_out_of_memory) {
        throw std::bad_alloc();
    }
    if (!result) {
        throw PackageError(PackageError::Reason::Corrupt, "Unparsable XML in " + std::string(partName) + " at offset " +
                                                              std::to_string(result.offset) + ": " +
                                                              result.description());
    }
}

}  // namespace ooxml
