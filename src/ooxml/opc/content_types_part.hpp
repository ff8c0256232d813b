#pragma once

#include "ooxml/xml/xml_writer.hpp"

#include <string>
#include <string_view>
#include <vector>

namespace ooxml {

// The package's [Content_Types].xml: a content type per file extension, overridden per part.
class ContentTypes {
public:
    static constexpr std::string_view kPartPath = "[Content_Types].xml";

    void AddDefault(std::string_view extension, std::string_view contentType);
    // partPath without the leading "/".
    void AddOverride(std::string_view partPath, std::string_view contentType);
    // Declares a part's content type: by the default for its extension when that is the same,
    // otherwise by an override.
    void AddPart(std::string_view partPath, std::string_view contentType);
    void Write(XmlWriter& xml) const;

private:
    struct Mapping {
        std::string key;
        std::string contentType;
    };
    std::vector<Mapping> defaults_;
    std::vector<Mapping> overrides_;
};

}  // namespace ooxml
