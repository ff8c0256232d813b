#include "ooxml/opc/package_writer.hpp"

#include "ooxml/comments/comments_part.hpp"
#include "ooxml/comments/vml_drawing_part.hpp"
#include "ooxml/drawing/drawing_part.hpp"
#include "ooxml/opc/atomic_file.hpp"
#include "ooxml/opc/content_types_part.hpp"
#include "ooxml/opc/package_part.hpp"
#include "ooxml/package_error.hpp"
#include "ooxml/properties/document_properties_part.hpp"
#include "ooxml/shared_strings/shared_strings_part.hpp"
#include "ooxml/styles/styles_part.hpp"
#include "ooxml/theme/theme_part.hpp"
#include "ooxml/workbook/workbook_part.hpp"
#include "ooxml/worksheet/worksheet_part.hpp"
#include "ooxml/zip/zip_writer.hpp"

#include <algorithm>
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

// The drawing and comment parts of the sheets, numbered across the workbook.
struct DrawingPlan {
    std::vector<PackagePart> drawings;
    std::vector<PackagePart> comments;  // each sheet's comments, then their legacy drawing
    uint32_t drawingCount = 0;
    uint32_t commentsCount = 0;
    uint32_t nextVmlIdBlock = 1;
};

// Plans the parts that hold a sheet's text boxes and comments, related from the sheet's part;
// returns the ids the worksheet refers to them by.
SheetDrawingReferences PlanSheetDrawings(const SheetDocument& sheet, PackagePart& sheetPart, DrawingPlan& plan) {
    SheetDrawingReferences references;
    if (!sheet.textBoxes.empty()) {
        const std::string drawing = fmt::format("drawings/drawing{}.xml", ++plan.drawingCount);
        references.drawing = sheetPart.relationships.Add(kDrawingRelationshipType, "../" + drawing);
        plan.drawings.push_back({"xl/" + drawing, kDrawingContentType,
                                 [&sheet](XmlWriter& xml) { WriteDrawingPart(xml, sheet); }, {}});
    }
    if (!sheet.comments.empty()) {
        ++plan.commentsCount;
        const std::string vmlDrawing = fmt::format("drawings/vmlDrawing{}.vml", plan.commentsCount);
        const std::string comments = fmt::format("comments{}.xml", plan.commentsCount);
        references.legacyDrawing = sheetPart.relationships.Add(kVmlDrawingRelationshipType, "../" + vmlDrawing);
        sheetPart.relationships.Add(kCommentsRelationshipType, "../" + comments);
        plan.comments.push_back({"xl/" + comments, kCommentsContentType,
                                 [&sheet](XmlWriter& xml) { WriteCommentsPart(xml, sheet); }, {}});
        plan.comments.push_back({"xl/" + vmlDrawing, kVmlDrawingContentType,
                                 [&sheet, firstIdBlock = plan.nextVmlIdBlock](XmlWriter& xml) {
                                     WriteVmlDrawingPart(xml, sheet, firstIdBlock);
                                 },
                                 {}});
        plan.nextVmlIdBlock += VmlIdBlockCount(sheet.comments.size());
    }
    return references;
}

// The parts in the order Excel stores them, each relationship added by the part that uses it.
void PlanPackage(const WorkbookDocument& document, Package& package) {
    package.sharedStrings = BuildSharedStringTable(document);
    const SharedStringTable& sharedStrings = package.sharedStrings;
    PackagePart workbook{"xl/workbook.xml", kWorkbookContentType, {}, {}};
    std::vector<PackagePart> sheetParts;
    std::vector<std::string> sheetRelationshipIds;
    DrawingPlan drawingPlan;
    for (std::size_t i = 0; i < document.sheets.size(); ++i) {
        const std::string name = fmt::format("worksheets/sheet{}.xml", i + 1);
        sheetRelationshipIds.push_back(workbook.relationships.Add(kWorksheetRelationshipType, name));
        const SheetDocument& sheet = document.sheets[i];
        PackagePart sheetPart{"xl/" + name, kWorksheetContentType, {}, {}};
        const SheetDrawingReferences drawings = PlanSheetDrawings(sheet, sheetPart, drawingPlan);
        sheetPart.write = [&document, &sheet, &sharedStrings, drawings](XmlWriter& xml) {
            WriteWorksheetPart(xml, document, sheet, sharedStrings, drawings);
        };
        sheetParts.push_back(std::move(sheetPart));
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
    package.parts.push_back({"xl/theme/theme1.xml", kThemeContentType,
                             [&document](XmlWriter& xml) { WriteThemePart(xml, document.themeColors); }, {}});
    package.parts.push_back({"xl/styles.xml", kStylesContentType,
                             [&document](XmlWriter& xml) { WriteStylesPart(xml, document); }, {}});
    if (!sharedStrings.strings.empty()) {
        package.parts.push_back({"xl/sharedStrings.xml", kSharedStringsContentType,
                                 [&document, &sharedStrings](XmlWriter& xml) {
                                     WriteSharedStringsPart(xml, document, sharedStrings);
                                 },
                                 {}});
    }
    for (std::vector<PackagePart>* parts : {&drawingPlan.drawings, &drawingPlan.comments}) {
        for (PackagePart& part : *parts) {
            package.parts.push_back(std::move(part));
        }
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
    if (std::any_of(package.parts.begin(), package.parts.end(),
                    [](const PackagePart& part) { return part.contentType == kVmlDrawingContentType; })) {
        contentTypes.AddDefault("vml", kVmlDrawingContentType);
    }
    for (const PackagePart& part : package.parts) {
        contentTypes.AddPart(part.path, part.contentType);
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
