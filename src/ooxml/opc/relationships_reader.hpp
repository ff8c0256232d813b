#pragma once

#include "ooxml/document/relationship.hpp"

#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace ooxml {

class ZipArchiveReader;

// "xl/workbook.xml" -> "xl/_rels/workbook.xml.rels"; the package itself ("") -> "_rels/.rels".
std::string RelationshipsPartName(std::string_view sourcePartName);

// Resolves a relationship target, absolute ("/xl/styles.xml") or relative to the source part's
// folder ("worksheets/sheet1.xml", "../media/image1.png"), to a part name; "" when it leaves the
// package.
std::string ResolveRelationshipTarget(std::string_view sourcePartName, std::string_view target);

// The relationships of a part; none when it has no relationships part. Throws PackageError(Corrupt).
std::vector<Relationship> ReadRelationships(const ZipArchiveReader& archive, std::string_view sourcePartName);

// Relationship types are compared by their last segment ("worksheet", "officeDocument"), which
// transitional and strict packages share.
bool HasRelationshipType(const Relationship& relationship, std::string_view typeName);
const Relationship* FindRelationshipOfType(const std::vector<Relationship>& relationships, std::string_view typeName);
const Relationship* FindRelationship(const std::vector<Relationship>& relationships, std::string_view id);
// The relationships by id (the first of an id a file repeats), for parts that refer to many: a
// workbook's sheets.
std::unordered_map<std::string_view, const Relationship*> RelationshipsById(
    const std::vector<Relationship>& relationships);

}  // namespace ooxml
