#include "ooxml/package_writer.hpp"

#include "ooxml/atomic_file.hpp"
#include "ooxml/content_types_part.hpp"
#include "ooxml/document_properties_part.hpp"
#include "ooxml/package_error.hpp"
#include "ooxml/package_part.hpp"
#include "ooxml/shared_strings_part.hpp"
#include "ooxml/styles_part.hpp"
#include "ooxml/theme_part.hpp"
#include "ooxml/workbook_part.hpp"
#include "ooxml/worksheet_part.hpp"
#include "ooxml/zip_writer.hpp"

#include <exception>
#include <fmt/format.h>
#include <vector>

namespace ooxml {

namespace {

struct Package {
    Relationships relationships;      // of the package itself: _rels/.rels
    std::vector<PackagePart> parts;   // in the order they are stored
    SharedStringTable sharedStrings;  // shared by the worksheets and the shared strings part
};

void CheckDocument(const WorkbookDocument& document) {
    auto refuse = [](const std::string& problem) {
        throw PackageError(PackageError::Reason::WriteFailed, "cannot save the workbook: " + problem);
    };
    if (document.sheets.empty()) {
        refuse("it has no sheets");
    }
    if (document.formats.empty()) {
        refuse("it has no default cell format");
    }
    if (document.activeSheet >= document.sheets.size()) {
        refuse("the active sheet does not exist");
    }
    for (const DefinedName& name : document.names) {
        if (name.localSheet && *name.localSheet >= document.sheets.size()) {
            refuse("the name " + name.name + " belongs to a sheet that does not exist");
        }
    }
}

// The parts in the order Excel stores them, each relationship added by the part that uses it.
void PlanPackage(const WorkbookDocument& document, Package& package) {
    package.sharedStrings = BuildSharedStringTable(document);
    const SharedStringTable& sharedStrings = package.sharedStrings;
    PackagePart workbook{"xl/workbook.xml", kWorkbookContentType, {}, {}};
    std::vector<PackagePart> sheetParts;
    std::vector<std::string> sheetRelationshipIds;
    for (std::size_t i = 0; i < document.sheets.size(); ++i) {
        const std::string name = fmt::format("worksheets/sheet{}.xml", i + 1);
        sheetRelationshipIds.push_back(workbook.relationships.Add(kWorksheetRelationshipType, name));
        const SheetDocument& sheet = document.sheets[i];
        sheetParts.push_back({"xl/" + name, kWorksheetContentType,
                              [&document, &sheet, &sharedStrings](XmlWriter& xml) {
                                  WriteWorksheetPart(xml, document, sheet, sharedStrings);
                              }, {}});
    }
    workbook.relationships.Add(kThemeRelationshipType, "theme/theme1.xml");
    workbook.relationships.Add(kStylesRelationshipType, "styles.xml");
    if (!sharedStrings.strings.empty()) {
        workbook.relationships.Add(kSharedStringsRelationshipType, "sharedStrings.xml");
    }
    workbook.write = [&document, sheetRelationshipIds](XmlWriter& xml) {
        WriteWorkbookPart(xml, document, sheetRelationshipIds);
    };

    package.relationships.Add(kOfficeDocumentRelationshipType, workbook.path);
    package.relationships.Add(kCorePropertiesRelationshipType, "docProps/core.xml");
    package.relationships.Add(kAppPropertiesRelationshipType, "docProps/app.xml");

    package.parts.push_back(std::move(workbook));
    for (PackagePart& sheetPart : sheetParts) {
        package.parts.push_back(std::move(sheetPart));
    }
    package.parts.push_back({"xl/theme/theme1.xml", kThemeContentType, WriteThemePart, {}});
    package.parts.push_back({"xl/styles.xml", kStylesContentType,
                             [&document](XmlWriter& xml) { WriteStylesPart(xml, document); }, {}});
    if (!sharedStrings.strings.empty()) {
        package.parts.push_back({"xl/sharedStrings.xml", kSharedStringsContentType,
                                 [&document, &sharedStrings](XmlWriter& xml) {
                                     WriteSharedStringsPart(xml, document, sharedStrings);
                                 },
                                 {}});
    }
    package.parts.push_back({"docProps/core.xml", kCorePropertiesContentType,
                             [&document](XmlWriter& xml) { WriteCorePropertiesPart(xml, document.properties); }, {}});
    package.parts.push_back({"docProps/app.xml", kAppPropertiesContentType,
                             [&document](XmlWriter& xml) { WriteAppPropertiesPart(xml, document); }, {}});
}

void WriteEntry(ZipWriter& zip, const std::string& path, const std::function<void(XmlWriter&)>& write) {
    zip.BeginEntry(path);
    XmlWriter xml(zip);
    write(xml);
    xml.Flush();
    zip.EndEntry();
}

void WriteRelationships(ZipWriter& zip, std::string_view sourcePath, const Relationships& relationships) {
    if (!relationships.Empty()) {
        WriteEntry(zip, RelationshipsPartPath(sourcePath), [&relationships](XmlWriter& xml) { relationships.Write(xml); });
    }
}

void WriteArchive(ZipWriter& zip, const Package& package) {
    ContentTypes contentTypes;
    contentTypes.AddDefault("rels", kRelationshipsContentType);
    contentTypes.AddDefault("xml", "application/xml");
    for (const PackagePart& part : package.parts) {
        contentTypes.AddOverride(part.path, part.contentType);
    }
    WriteEntry(zip, std::string(ContentTypes::kPartPath), [&contentTypes](XmlWriter& xml) { contentTypes.Write(xml); });
    WriteRelationships(zip, "", package.relationships);
    for (const PackagePart& part : package.parts) {
        WriteEntry(zip, part.path, part.write);
        WriteRelationships(zip, part.path, part.relationships);
    }
    zip.Finish();
}

}  // namespace

void WritePackage(const WorkbookDocument& document, const std::string& path) {
    CheckDocument(document);
    try {
        AtomicFile file(path);
        {
            Package package;
            PlanPackage(document, package);
            ZipWriter zip(file.Descriptor());
            WriteArchive(zip, package);
        }
        file.Commit();
    } catch (const PackageError&) {
        throw;
    } catch (const std::exception& error) {
        throw PackageError(PackageError::Reason::WriteFailed, "saving " + path + ": " + error.what());
    }
}

}  // namespace ooxml
