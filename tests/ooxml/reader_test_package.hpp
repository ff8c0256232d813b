#pragma once

#include <map>
#include <string>
#include <vector>

namespace ooxml_test {

// Part name -> bytes of a package to be zipped.
using PackageParts = std::map<std::string, std::string>;

// The pieces test packages are written with.
inline constexpr const char* XmlDeclaration = R"(<?xml version="1.0" encoding="UTF-8" standalone="yes"?>)";
// A content types part that gives .rels and .xml their defaults, then the entries (<Default>,
// <Override>) given.
std::string ContentTypesPart(const std::string& entries);
// A relationships part holding the relationships given (each from Relationship).
std::string RelationshipsPart(const std::vector<std::string>& relationships);
// A relationship of an officeDocument relationship type named by its last word ("worksheet"), or
// of any other type given whole.
std::string Relationship(const std::string& id, const std::string& type, const std::string& target,
                         bool external = false);

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

// The entries of a zip file, as they are stored; a name stored twice throws.
PackageParts ReadPackageParts(const std::string& path);

// The bytes of a file.
std::string FileBytes(const std::string& path);

}  // namespace ooxml_test
