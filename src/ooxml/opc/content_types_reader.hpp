#pragma once

#include <map>
#include <string>
#include <string_view>

namespace ooxml {

class ZipArchiveReader;

// The package's [Content_Types].xml: a content type per part name, or per file extension.
class ContentTypeMap {
public:
    // Throws PackageError: NotAPackage when the package has no content types, Corrupt when they
    // cannot be parsed.
    explicit ContentTypeMap(const ZipArchiveReader& archive);

    // The content type of a part (name without the leading "/"), "" when none is declared.
    std::string Of(std::string_view partName) const;
    // The first part declared with the content type, "" when none is.
    std::string FirstPartOf(std::string_view contentType) const;
    // The content types by extension, the extensions in lower case.
    const std::map<std::string, std::string>& Defaults() const { return byExtension_; }

private:
    std::map<std::string, std::string> byExtension_;  // keys lower case
    std::map<std::string, std::string> byPartName_;   // keys lower case, without the leading "/"
};

}  // namespace ooxml
