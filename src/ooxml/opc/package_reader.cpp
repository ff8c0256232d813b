#include "ooxml/opc/package_reader.hpp"

#include "ooxml/comments/comments_reader.hpp"
#include "ooxml/comments/vml_drawing_reader.hpp"
#include "ooxml/drawing/drawing_reader.hpp"
#include "ooxml/opc/content_types_reader.hpp"
#include "ooxml/opc/relationships_reader.hpp"
#include "ooxml/package_error.hpp"
#include "ooxml/properties/document_properties_reader.hpp"
#include "ooxml/shared_strings/shared_strings_reader.hpp"
#include "ooxml/shared_strings/string_table_builder.hpp"
#include "ooxml/styles/styles_reader.hpp"
#include "ooxml/workbook/workbook_reader.hpp"
#include "ooxml/worksheet/worksheet_reader.hpp"
#include "ooxml/zip/zip_archive_reader.hpp"

#include <algorithm>
#include <array>
#include <optional>

namespace ooxml {

namespace {

constexpr std::array<std::string_view, 4> WorkbookContentTypes{
    "application/vnd.openxmlformats-officedocument.spreadsheetml.sheet.main+xml",
    "application/vnd.ms-excel.sheet.macroEnabled.main+xml",
    "application/vnd.openxmlformats-officedocument.spreadsheetml.template.main+xml",
    "application/vnd.ms-excel.template.macroEnabled.main+xml",
};

[[noreturn]] void ThrowNotAPackage(const std::string& path, const std::string& why) {
    throw PackageError(PackageError::Reason::NotAPackage, "Not a workbook package (" + why + "): " + path);
}

// The workbook is the package's office document; a package that lost that relationship still
// declares the part by its content type.
std::string WorkbookPartName(const ZipArchiveReader& archive, const ContentTypeMap& contentTypes,
                             const std::vector<Relationship>& packageRelationships, const std::string& path) {
    std::string partName;
    if (const Relationship* office = FindRelationshipOfType(packageRelationships, "officeDocument")) {
        partName = office->target;
    }
    for (std::size_t i = 0; partName.empty() && i < WorkbookContentTypes.size(); ++i) {
        partName = contentTypes.FirstPartOf(WorkbookContentTypes[i]);
    }
    if (partName.empty() || !archive.Contains(partName)) {
        ThrowNotAPackage(path, "no workbook part");
    }
    const std::string contentType = contentTypes.Of(partName);
    if (!contentType.empty() && std::find(WorkbookContentTypes.begin(), WorkbookContentTypes.end(), contentType) ==
                                    WorkbookContentTypes.end()) {
        ThrowNotAPackage(path, "the office document is " + contentType);
    }
    return partName;
}

// The part a relationship leads to, read; nothing when there is none.
std::optional<std::string> ReadRelatedPart(const ZipArchiveReader& archive, const Relationship* relationship) {
    return relationship != nullptr ? archive.Read(relationship->target) : std::nullopt;
}

// The text boxes of the sheet's drawing, and its comments with the shapes of their notes.
void ReadSheetDrawings(const ZipArchiveReader& archive, std::string_view sheetPartName,
                       const SheetDrawingReferences& drawings, SheetDocument& sheet) {
    const std::vector<Relationship> relationships = ReadRelationships(archive, sheetPartName);
    const auto related = [&relationships](const std::string& id, std::string_view typeName) -> const Relationship* {
        const Relationship* relationship = FindRelationship(relationships, id);
        return relationship != nullptr && !relationship->external && HasRelationshipType(*relationship, typeName)
                   ? relationship
                   : nullptr;
    };
    const Relationship* drawing = related(drawings.drawing, "drawing");
    if (std::optional<std::string> xml = ReadRelatedPart(archive, drawing)) {
        sheet.textBoxes = ReadDrawing(*xml, drawing->target);
    }
    const Relationship* comments = FindRelationshipOfType(relationships, "comments");
    if (std::optional<std::string> xml = ReadRelatedPart(archive, comments)) {
        sheet.comments = ReadComments(*xml, comments->target);
        if (std::optional<std::string> vml = ReadRelatedPart(archive, related(drawings.legacyDrawing, "vmlDrawing"))) {
            ReadVmlNoteShapes(*vml, sheet.comments);
        }
    }
}

}  // namespace

WorkbookDocument ReadPackage(const std::string& path) {
    const ZipArchiveReader archive(path);
    const ContentTypeMap contentTypes(archive);
    const std::vector<Relationship> packageRelationships = ReadRelationships(archive, "");
    const std::string workbookPartName = WorkbookPartName(archive, contentTypes, packageRelationships, path);
    std::optional<std::string> workbookXml = archive.Read(workbookPartName);
    const WorkbookPart workbook = ReadWorkbook(*workbookXml, workbookPartName);
    const std::vector<Relationship> workbookRelationships = ReadRelationships(archive, workbookPartName);

    WorkbookDocument document;
    const Relationship* stylesRelationship = FindRelationshipOfType(workbookRelationships, "styles");
    if (std::optional<std::string> xml = ReadRelatedPart(archive, stylesRelationship)) {
        StylesPart styles = ReadStyles(*xml, stylesRelationship->target);
        document.formats = std::move(styles.formats);
        document.palette = std::move(styles.palette);
    }
    const Relationship* stringsRelationship = FindRelationshipOfType(workbookRelationships, "sharedStrings");
    if (std::optional<std::string> xml = ReadRelatedPart(archive, stringsRelationship)) {
        document.strings = ReadSharedStrings(*xml, stringsRelationship->target);
    }

    // Only worksheets are read; chart sheets, dialog sheets and macro sheets are left out, so
    // positions in the workbook part are mapped to positions among the worksheets.
    StringTableBuilder strings(document.strings);
    const WorksheetContext context{strings, static_cast<uint32_t>(document.strings.size()),
                                   static_cast<uint32_t>(document.formats.size())};
    std::vector<std::optional<uint32_t>> sheetPositions;
    for (const SheetEntry& entry : workbook.sheets) {
        const Relationship* relationship = FindRelationship(workbookRelationships, entry.relationshipId);
        if (relationship == nullptr || relationship->external || !HasRelationshipType(*relationship, "worksheet")) {
            sheetPositions.emplace_back();
            continue;
        }
        std::optional<ZipEntryReader> part = archive.Open(relationship->target);
        if (!part) {
            throw PackageError(PackageError::Reason::Corrupt, "Missing worksheet part " + relationship->target);
        }
        SheetDocument& sheet = document.sheets.emplace_back();
        sheet.name = entry.name;
        sheet.state = entry.state;
        const SheetDrawingReferences drawings = ReadWorksheet(
            [&](char* buffer, std::size_t size) { return part->Read(buffer, size); }, relationship->target, context, sheet);
        ReadSheetDrawings(archive, relationship->target, drawings, sheet);
        sheetPositions.emplace_back(static_cast<uint32_t>(document.sheets.size() - 1));
    }
    if (document.sheets.empty()) {
        ThrowNotAPackage(path, "no worksheet");
    }

    const auto worksheetPosition = [&](uint32_t position) {
        return position < sheetPositions.size() ? sheetPositions[position] : std::nullopt;
    };
    for (DefinedName name : workbook.names) {
        if (name.localSheet) {
            name.localSheet = worksheetPosition(*name.localSheet);
            if (!name.localSheet) {
                continue;  // scoped to a sheet that is not read
            }
        }
        document.names.push_back(std::move(name));
    }
    document.activeSheet = worksheetPosition(workbook.activeTab).value_or(0);
    document.date1904 = workbook.date1904;
    document.lockStructure = workbook.lockStructure;
    document.lockWindows = workbook.lockWindows;

    if (const Relationship* core = FindRelationshipOfType(packageRelationships, "core-properties")) {
        if (std::optional<std::string> xml = archive.Read(core->target)) {
            document.properties = ReadDocumentProperties(*xml, core->target);
        }
    }
    return document;
}

}  // namespace ooxml
