#pragma once

#include <map>
#include <string>

namespace ooxml_test {

// Part name -> bytes of a package to be zipped.
using PackageParts = std::map<std::string, std::string>;

// A one-sheet workbook package in Excel's layout; sheetContent is what goes inside <worksheet>.
PackageParts MinimalPackage(const std::string& sheetContent);
// The same with a styles part.
PackageParts MinimalPackageWithStyles(const std::string& sheetContent, const std::string& styles);

// A zip written to a file of its own in the test's temporary folder, removed again with the object.
class TemporaryPackage {
public:
    explicit TemporaryPackage(const PackageParts& parts);
    // A file holding exactly these bytes.
    explicit TemporaryPackage(const std::string& bytes);
    TemporaryPackage(const TemporaryPackage&) = delete;
    TemporaryPackage& operator=(const TemporaryPackage&) = delete;
    ~TemporaryPackage();

    const std::string& Path() const { return path_; }

private:
    std::string path_;
};

// The entries of a zip file, as they are stored.
PackageParts ReadPackageParts(const std::string& path);

// The bytes of a file.
std::string FileBytes(const std::string& path);

}  // namespace ooxml_test
