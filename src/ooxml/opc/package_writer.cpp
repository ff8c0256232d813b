#include "ooxml/opc/package_writer.hpp"

#include "ooxml/chart/chart_drawing_part.hpp"
#include "ooxml/chart/chart_part.hpp"
#include "ooxml/comments/comments_part.hpp"
#include "ooxml/comments/vml_drawing_part.hpp"
#include "ooxml/drawing/drawing_part.hpp"
#include "ooxml/opc/atomic_file.hpp"
#include "ooxml/opc/carried_parts_writer.hpp"
#include "ooxml/opc/content_types_part.hpp"
#include "ooxml/opc/package_part.hpp"
#include "ooxml/opc/part_names.hpp"
#include "ooxml/opc/relationships_reader.hpp"
#include "ooxml/opc/vml_id_reservations.hpp"
#include "ooxml/package_error.hpp"
#include "ooxml/properties/document_properties_part.hpp"
#include "ooxml/shared_strings/shared_strings_part.hpp"
#include "ooxml/styles/styles_part.hpp"
#include "ooxml/theme/theme_part.hpp"
#include "ooxml/workbook/sheet_order.hpp"
#include "ooxml/workbook/workbook_part.hpp"
#include "ooxml/worksheet/table_name_reader.hpp"
#include "ooxml/worksheet/worksheet_part.hpp"
#include "ooxml/zip/zip_writer.hpp"

#include <algorithm>
#include <array>
#include <cctype>
#include <exception>
#include <filesystem>
#include <iterator>
#include <optional>
#include <set>
#include <vector>

namespace ooxml {

namespace {

struct Package {
    Relationships relationships;      // of the package itself: _rels/.rels
    std::vector<PackagePart> parts;   // in the order they are stored
    SharedStringTable sharedStrings;  // shared by the worksheets and the shared strings part
    ReferenceTargets targets;         // what formulas may refer to beyond the sheets
    SheetOrder sheetOrder;            // the worksheets among the carried sheets
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
    for (const SheetDocument& sheet : document.sheets) {
        for (const DrawingShape& shape : sheet.shapes) {
            if (shape.chart && !WritableChart(*shape.chart)) {
                refuse("the chart " + shape.name + " has a chart type or axis that cannot be written");
            }
        }
    }
}

// The drawing, chart and comment parts of the sheets, numbered across the workbook.
struct DrawingPlan {
    std::vector<PackagePart> drawings;
    std::vector<PackagePart> charts;    // each chart, then its drawing
    std::vector<PackagePart> comments;  // each sheet's comments, then their legacy drawing
    uint32_t drawingCount = 0;
    uint32_t chartCount = 0;
    uint32_t commentsCount = 0;
    uint32_t vmlDrawingCount = 0;
    VmlIdBlocks vmlIdBlocks;
};

void KeepRelationships(PackagePart& part, const std::vector<Relationship>& relationships) {
    for (const Relationship& relationship : relationships) {
        part.relationships.Keep(relationship, part.path);
    }
}

// Plans a chart's part, with the relationships its carried markup uses and, when it has text
// boxes, its drawing, numbered with the sheets' drawings; returns the chart part's name.
std::string PlanChart(const ChartDocument& chart, PartNames& names, DrawingPlan& plan) {
    PackagePart part{names.Next("xl/charts/chart", plan.chartCount, ".xml"), kChartContentType, {}, {}};
    KeepRelationships(part, chart.carried.relationships);
    std::optional<PackagePart> drawing;
    std::string userShapesId;
    if (HasChartDrawing(chart)) {
        drawing.emplace(names.Next("xl/drawings/drawing", plan.drawingCount, ".xml"), kChartDrawingContentType,
                        [&chart](XmlWriter& xml) { WriteChartDrawingPart(xml, chart); });
        KeepRelationships(*drawing, chart.drawingCarried.relationships);
        userShapesId =
            part.relationships.Add(kChartUserShapesRelationshipType, RelativeTarget(part.path, drawing->path));
    }
    part.write = [&chart, userShapesId](XmlWriter& xml) { WriteChartPart(xml, chart, userShapesId); };
    std::string path = part.path;
    plan.charts.push_back(std::move(part));
    if (drawing) {
        plan.charts.push_back(std::move(*drawing));
    }
    return path;
}

// Plans a sheet's drawing: its text boxes, its charts' frames (each related to its chart's part)
// and the anchors its opened drawing carries.
std::string PlanSheetDrawing(const SheetDocument& sheet, const CarriedMarkup* carried, PartNames& names,
                             DrawingPlan& plan) {
    PackagePart part{names.Next("xl/drawings/drawing", plan.drawingCount, ".xml"), kDrawingContentType, {}, {}};
    if (carried != nullptr) {
        KeepRelationships(part, carried->relationships);
    }
    std::vector<std::string> chartIds;
    for (const DrawingShape& shape : sheet.shapes) {
        if (shape.chart) {
            const std::string chart = PlanChart(*shape.chart, names, plan);
            chartIds.push_back(part.relationships.Add(kChartRelationshipType, RelativeTarget(part.path, chart)));
        }
    }
    part.write = [&sheet, chartIds = std::move(chartIds)](XmlWriter& xml) { WriteDrawingPart(xml, sheet, chartIds); };
    std::string path = part.path;
    plan.drawings.push_back(std::move(part));
    return path;
}

// Plans the parts that hold a sheet's text boxes and charts (with the anchors its opened drawing
// carries) and comments, related from the sheet's part; returns the ids the worksheet refers to them by.
SheetDrawingReferences PlanSheetDrawings(const SheetDocument& sheet, PackagePart& sheetPart, PartNames& names,
                                         DrawingPlan& plan) {
    SheetDrawingReferences references;
    const CarriedMarkup* carried = sheet.carried ? &sheet.carried->drawing : nullptr;
    if (!sheet.shapes.empty() || (carried != nullptr && !carried->elements.empty())) {
        const std::string drawing = PlanSheetDrawing(sheet, carried, names, plan);
        references.drawing =
            sheetPart.relationships.Add(kDrawingRelationshipType, RelativeTarget(sheetPart.path, drawing));
    }
    // The legacy drawing holds the notes and the shapes the opened one carries (form controls,
    // embedded objects' icons), with their relationships.
    const CarriedMarkup* legacy = sheet.carried ? &sheet.carried->legacyDrawing : nullptr;
    if (!sheet.comments.empty() || (legacy != nullptr && !legacy->elements.empty())) {
        const std::string comments =
            sheet.comments.empty() ? std::string() : names.Next("xl/comments", plan.commentsCount, ".xml");
        const std::string vmlDrawing = names.Next("xl/drawings/vmlDrawing", plan.vmlDrawingCount, ".vml");
        references.legacyDrawing =
            sheetPart.relationships.Add(kVmlDrawingRelationshipType, RelativeTarget(sheetPart.path, vmlDrawing));
        if (!comments.empty()) {
            sheetPart.relationships.Add(kCommentsRelationshipType, RelativeTarget(sheetPart.path, comments));
            plan.comments.push_back(
                {comments, kCommentsContentType, [&sheet](XmlWriter& xml) { WriteCommentsPart(xml, sheet); }, {}});
        }
        PackagePart part{vmlDrawing,
                         kVmlDrawingContentType,
                         [&sheet, blocks = plan.vmlIdBlocks.Take(sheet.comments.size())](XmlWriter& xml) {
                             WriteVmlDrawingPart(xml, sheet, blocks);
                         },
                         {}};
        if (legacy != nullptr) {
            KeepRelationships(part, legacy->relationships);
        }
        plan.comments.push_back(std::move(part));
    }
    return references;
}

// What formulas may refer to beyond the sheets: the links to other workbooks the workbook keeps,
// and the tables of the sheets that are left.
ReferenceTargets PlanReferenceTargets(const WorkbookDocument& document,
                                      const std::vector<Relationship>& workbookRelationships,
                                      const CarriedPartsPlan& carriedParts) {
    ReferenceTargets targets;
    for (const Relationship& relationship : workbookRelationships) {
        if (HasRelationshipType(relationship, "externalLink")) {
            ++targets.externalWorkbooks;
        }
    }
    for (const SheetDocument& sheet : document.sheets) {
        if (!sheet.carried) {
            continue;
        }
        for (const Relationship& relationship : sheet.carried->worksheet.relationships) {
            const CarriedPart* table = carriedParts.PartOf(relationship);
            if (table != nullptr && HasRelationshipType(relationship, "table")) {
                targets.tables.push_back(ReadTableName(table->bytes));
            }
        }
    }
    return targets;
}

// The workbook's content type by the file name's extension, as Excel saves by it: a template or
// a macro workbook stays one under its own extension. Under another extension the opened file's
// kind is kept.
std::string_view WorkbookContentType(const std::string& path, const CarriedWorkbook* carried) {
    static constexpr std::array<std::pair<std::string_view, std::string_view>, 4> ByExtension{{
        {".xlsx", kWorkbookContentType},
        {".xlsm", "application/vnd.ms-excel.sheet.macroEnabled.main+xml"},
        {".xltx", "application/vnd.openxmlformats-officedocument.spreadsheetml.template.main+xml"},
        {".xltm", "application/vnd.ms-excel.template.macroEnabled.main+xml"},
    }};
    std::string extension = std::filesystem::path(path).extension().string();
    std::transform(extension.begin(), extension.end(), extension.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    for (const auto& [known, contentType] : ByExtension) {
        if (extension == known) {
            return contentType;
        }
    }
    return carried != nullptr ? std::string_view(carried->workbookContentType) : kWorkbookContentType;
}

// The parts in the order Excel stores them, each relationship added by the part that uses it; the
// parts carried from an opened file keep their names and relationship ids, and the parts the
// writer makes take names and ids beside them.
void PlanPackage(const WorkbookDocument& document, const std::string& path, Package& package) {
    const CarriedWorkbook* carried = document.carried.get();
    const std::string_view workbookContentType = WorkbookContentType(path, carried);
    // A workbook saved without macros leaves its macro project behind, as Excel does.
    const bool keepsMacros = workbookContentType.find("macroEnabled") != std::string_view::npos;
    std::vector<Relationship> workbookRelationships;
    if (carried != nullptr) {
        std::copy_if(carried->workbook.relationships.begin(), carried->workbook.relationships.end(),
                     std::back_inserter(workbookRelationships), [keepsMacros](const Relationship& relationship) {
                         return keepsMacros || !HasRelationshipType(relationship, "vbaProject");
                     });
    }
    const CarriedPartsPlan carriedParts(document, workbookRelationships);
    package.targets = PlanReferenceTargets(document, workbookRelationships, carriedParts);
    PartNames names;
    for (const std::string& name : carriedParts.Names()) {
        names.Take(name);
    }
    package.sharedStrings = BuildSharedStringTable(document);
    const SharedStringTable& sharedStrings = package.sharedStrings;
    PackagePart workbook{"xl/workbook.xml", workbookContentType, {}, {}};
    names.Take(workbook.path);
    bool keepsTheme = false;
    for (const Relationship& relationship : workbookRelationships) {
        workbook.relationships.Keep(relationship, workbook.path);
        keepsTheme = keepsTheme || HasRelationshipType(relationship, "theme");
    }
    if (carried != nullptr) {
        for (const CarriedSheet& sheet : carried->sheets) {
            if (!sheet.relationship.id.empty()) {
                workbook.relationships.Keep(sheet.relationship, workbook.path);
            }
        }
    }
    std::vector<PackagePart> sheetParts;
    std::vector<std::string> sheetRelationshipIds;
    DrawingPlan drawingPlan;
    drawingPlan.vmlIdBlocks = ReserveVmlIdBlocks(document, carriedParts);
    uint32_t sheetCount = 0;
    for (const SheetDocument& sheet : document.sheets) {
        PackagePart sheetPart{names.Next("xl/worksheets/sheet", sheetCount, ".xml"), kWorksheetContentType, {}, {}};
        sheetRelationshipIds.push_back(
            workbook.relationships.Add(kWorksheetRelationshipType, RelativeTarget(workbook.path, sheetPart.path)));
        if (sheet.carried) {
            for (const Relationship& relationship : sheet.carried->worksheet.relationships) {
                sheetPart.relationships.Keep(relationship, sheetPart.path);
            }
        }
        const SheetDrawingReferences drawings = PlanSheetDrawings(sheet, sheetPart, names, drawingPlan);
        sheetPart.write = [&document, &sheet, &sharedStrings, &targets = package.targets, drawings](XmlWriter& xml) {
            WriteWorksheetPart(xml, document, sheet, sharedStrings, drawings, targets);
        };
        sheetParts.push_back(std::move(sheetPart));
    }
    const SheetOrder& order = package.sheetOrder = OrderSheets(document);
    // The writer's own parts take Excel's names unless a part the file keeps has one of them.
    uint32_t themeCount = 0;
    const std::string themePath = keepsTheme ? std::string() : names.Next("xl/theme/theme", themeCount, ".xml");
    const std::string stylesPath = names.Claim("xl/styles.xml");
    const std::string sharedStringsPath = names.Claim("xl/sharedStrings.xml");
    const std::string corePath = names.Claim("docProps/core.xml");
    const std::string appPath = names.Claim("docProps/app.xml");
    if (!keepsTheme) {
        workbook.relationships.Add(kThemeRelationshipType, RelativeTarget(workbook.path, themePath));
    }
    workbook.relationships.Add(kStylesRelationshipType, RelativeTarget(workbook.path, stylesPath));
    if (!sharedStrings.strings.empty()) {
        workbook.relationships.Add(kSharedStringsRelationshipType, RelativeTarget(workbook.path, sharedStringsPath));
    }
    workbook.write = [&document, &order, sheetRelationshipIds, &targets = package.targets](XmlWriter& xml) {
        WriteWorkbookPart(xml, document, order, sheetRelationshipIds, targets);
    };

    if (carried != nullptr) {
        for (const Relationship& relationship : carried->packageRelationships) {
            package.relationships.Keep(relationship, "");
        }
    }
    package.relationships.Add(kOfficeDocumentRelationshipType, workbook.path);
    package.relationships.Add(kCorePropertiesRelationshipType, corePath);
    package.relationships.Add(kAppPropertiesRelationshipType, appPath);

    package.parts.push_back(std::move(workbook));
    for (PackagePart& sheetPart : sheetParts) {
        package.parts.push_back(std::move(sheetPart));
    }
    std::vector<PackagePart> carriedPackageParts = carriedParts.Parts();
    // The theme, the workbook's own or the default, is stored where Excel stores it.
    if (keepsTheme) {
        const auto theme = std::find_if(carriedPackageParts.begin(), carriedPackageParts.end(),
                                        [](const PackagePart& part) { return part.contentType == kThemeContentType; });
        if (theme != carriedPackageParts.end()) {
            package.parts.push_back(std::move(*theme));
            carriedPackageParts.erase(theme);
        }
    } else {
        package.parts.push_back({themePath,
                                 kThemeContentType,
                                 [&document](XmlWriter& xml) { WriteThemePart(xml, document.themeColors); },
                                 {}});
    }
    package.parts.push_back(
        {stylesPath, kStylesContentType, [&document](XmlWriter& xml) { WriteStylesPart(xml, document); }, {}});
    if (!sharedStrings.strings.empty()) {
        package.parts.push_back(
            {sharedStringsPath,
             kSharedStringsContentType,
             [&document, &sharedStrings](XmlWriter& xml) { WriteSharedStringsPart(xml, document, sharedStrings); },
             {}});
    }
    for (std::vector<PackagePart>* parts : {&drawingPlan.drawings, &drawingPlan.charts, &drawingPlan.comments}) {
        for (PackagePart& part : *parts) {
            package.parts.push_back(std::move(part));
        }
    }
    for (PackagePart& part : carriedPackageParts) {
        package.parts.push_back(std::move(part));
    }
    package.parts.push_back({corePath,
                             kCorePropertiesContentType,
                             [&document](XmlWriter& xml) {
                                 WriteCorePropertiesPart(xml, document.properties,
                                                         document.carried && !document.carried->coreProperties.Empty()
                                                             ? &document.carried->coreProperties
                                                             : nullptr);
                             },
                             {}});
    package.parts.push_back({appPath,
                             kAppPropertiesContentType,
                             [&document](XmlWriter& xml) { WriteAppPropertiesPart(xml, document); },
                             {}});
}

void WriteEntry(ZipWriter& zip, const std::string& path, const std::function<void(XmlWriter&)>& write) {
    zip.BeginEntry(path);
    XmlWriter xml(zip);
    write(xml);
    xml.Flush();
    zip.EndEntry();
}

void WriteRelationships(ZipWriter& zip, const PackagePart& part) {
    if (!part.verbatimRelationships.empty()) {
        WriteEntry(zip, RelationshipsPartPath(part.path),
                   [&part](XmlWriter& xml) { xml.Raw(part.verbatimRelationships); });
    } else if (!part.relationships.Empty()) {
        WriteEntry(zip, RelationshipsPartPath(part.path), [&part](XmlWriter& xml) { part.relationships.Write(xml); });
    }
}

// The content types by extension: Excel's own, and those the opened file declared for the
// extensions of the parts it carries (png, bin, ...); the parts they do not cover get overrides.
ContentTypes PlanContentTypes(const WorkbookDocument& document, const Package& package) {
    ContentTypes contentTypes;
    contentTypes.AddDefault("rels", kRelationshipsContentType);
    contentTypes.AddDefault("xml", "application/xml");
    std::set<std::string> extensions{"rels", "xml"};
    for (const PackagePart& part : package.parts) {
        const std::size_t dot = part.path.rfind('.');
        std::string extension = dot == std::string::npos ? std::string() : part.path.substr(dot + 1);
        if (extensions.count(extension) != 0) {
            continue;
        }
        if (part.contentType == kVmlDrawingContentType) {
            contentTypes.AddDefault(extension, kVmlDrawingContentType);
            extensions.insert(extension);
        } else if (document.carried) {
            const auto declared = document.carried->defaultContentTypes.find(extension);
            if (declared != document.carried->defaultContentTypes.end() && declared->second == part.contentType) {
                contentTypes.AddDefault(extension, part.contentType);
                extensions.insert(extension);
            }
        }
    }
    for (const PackagePart& part : package.parts) {
        contentTypes.AddPart(part.path, part.contentType);
    }
    return contentTypes;
}

void WriteArchive(ZipWriter& zip, const WorkbookDocument& document, const Package& package) {
    const ContentTypes contentTypes = PlanContentTypes(document, package);
    WriteEntry(zip, std::string(ContentTypes::kPartPath), [&contentTypes](XmlWriter& xml) { contentTypes.Write(xml); });
    WriteRelationships(zip, PackagePart{"", {}, {}, package.relationships, {}});
    for (const PackagePart& part : package.parts) {
        WriteEntry(zip, part.path, part.write);
        WriteRelationships(zip, part);
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
            PlanPackage(document, path, package);
            ZipWriter zip(file.Descriptor());
            WriteArchive(zip, document, package);
        }
        file.Commit();
    } catch (const PackageError&) {
        throw;
    } catch (const std::exception& error) {
        throw PackageError(PackageError::Reason::WriteFailed, "saving " + path + ": " + error.what());
    }
}

}  // namespace ooxml
