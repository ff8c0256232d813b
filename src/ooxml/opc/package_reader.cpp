#include "ooxml/opc/package_reader.hpp"

#include "ooxml/comments/comments_reader.hpp"
#include "ooxml/comments/vml_drawing_reader.hpp"
#include "ooxml/drawing/drawing_reader.hpp"
#include "ooxml/opc/carried_parts_reader.hpp"
#include "ooxml/opc/chart_parts_reader.hpp"
#include "ooxml/opc/content_types_reader.hpp"
#include "ooxml/opc/relationships_reader.hpp"
#include "ooxml/package_error.hpp"
#include "ooxml/properties/document_properties_reader.hpp"
#include "ooxml/shared_strings/shared_strings_reader.hpp"
#include "ooxml/shared_strings/string_table_builder.hpp"
#include "ooxml/styles/styles_reader.hpp"
#include "ooxml/theme/theme_reader.hpp"
#include "ooxml/workbook/workbook_reader.hpp"
#include "ooxml/worksheet/carried_worksheet_repair.hpp"
#include "ooxml/worksheet/worksheet_element_order.hpp"
#include "ooxml/worksheet/worksheet_reader.hpp"
#include "ooxml/zip/zip_archive_reader.hpp"

#include <algorithm>
#include <array>
#include <optional>
#include <set>

namespace ooxml {

namespace {

constexpr std::string_view kCarriedSheetTypes[] = {"chartsheet", "dialogsheet", "xlMacrosheet", "xlIntlMacrosheet"};

constexpr std::array<std::string_view, 4> WorkbookContentTypes{
    "application/vnd.openxmlformats-officedocument.spreadsheetml.sheet.main+xml",
    "application/vnd.ms-excel.sheet.macroEnabled.main+xml",
    "application/vnd.openxmlformats-officedocument.spreadsheetml.template.main+xml",
    "application/vnd.ms-excel.template.macroEnabled.main+xml",
};

[[noreturn]] void ThrowNotAPackage(const std::string& path, const std::string& why) {
    throw PackageError(PackageError::Reason::NotAPackage, "Not a workbook package (" + why + "): " + path);
}

[[noreturn]] void ThrowCorrupt(const std::string& why) {
    throw PackageError(PackageError::Reason::Corrupt, why);
}

// The workbook is the package's office document; a package that lost that relationship still
// declares the part by its content type.
// The sheets a workbook lists that the engine keeps whole rather than reads: chart sheets, dialog
// sheets and macro sheets. Any other part named as a sheet (a theme, the styles) makes the file one
// Excel would have to repair.
bool IsCarriedSheetType(const Relationship& relationship) {
    return std::any_of(std::begin(kCarriedSheetTypes), std::end(kCarriedSheetTypes),
                       [&relationship](std::string_view type) { return HasRelationshipType(relationship, type); });
}

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

// The relationships but those of the given types.
std::vector<Relationship> RelationshipsExcept(const std::vector<Relationship>& relationships,
                                              std::initializer_list<std::string_view> typeNames) {
    std::vector<Relationship> kept;
    for (const Relationship& relationship : relationships) {
        const bool excluded = std::any_of(typeNames.begin(), typeNames.end(), [&](std::string_view typeName) {
            return !relationship.external && HasRelationshipType(relationship, typeName);
        });
        if (!excluded) {
            kept.push_back(relationship);
        }
    }
    return kept;
}

class PackageReader {
public:
    PackageReader(const std::string& path, const ReadOptions& options)
        : path_(path),
          options_(options),
          archive_(path),
          contentTypes_(archive_),
          carriedParts_(archive_, contentTypes_, carried_->parts),
          charts_(archive_, carriedParts_) {}

    WorkbookDocument Read() {
        const std::vector<Relationship> packageRelationships = ReadRelationships(archive_, "");
        const std::string workbookPartName = WorkbookPartName(archive_, contentTypes_, packageRelationships, path_);
        carried_->workbookContentType = contentTypes_.Of(workbookPartName);
        if (carried_->workbookContentType.empty()) {
            carried_->workbookContentType = WorkbookContentTypes[0];
        }
        carried_->defaultContentTypes = contentTypes_.Defaults();
        std::optional<std::string> workbookXml = archive_.Read(workbookPartName);
        const WorkbookPart workbook = ReadWorkbook(*workbookXml, workbookPartName, *carried_);
        carriedParts_.Rewritten(workbookPartName);
        const std::vector<Relationship> workbookRelationships = ReadRelationships(archive_, workbookPartName);

        ReadStylesAndStrings(workbookRelationships);
        const std::vector<std::optional<uint32_t>> worksheetPositions = ReadSheets(workbook, workbookRelationships);
        ReadNames(workbook, worksheetPositions);
        document_.activeSheet =
            (workbook.activeTab < worksheetPositions.size() ? worksheetPositions[workbook.activeTab] : std::nullopt)
                .value_or(0);
        document_.date1904 = workbook.date1904;
        document_.lockStructure = workbook.lockStructure;
        document_.lockWindows = workbook.lockWindows;
        for (const auto& [name, value] : carried_->protectionAttributes) {
            document_.passwordFromFile |= name == "workbookPassword" || name == "workbookHashValue";
            if (name == "workbookPassword") {
                document_.passwordVerifier = value;
            }
        }

        std::set<std::string> sheetRelationshipIds;
        for (const SheetEntry& entry : workbook.sheets) {
            sheetRelationshipIds.insert(entry.relationshipId);
        }
        for (const Relationship& relationship :
             RelationshipsExcept(workbookRelationships, {"worksheet", "styles", "sharedStrings", "calcChain"})) {
            if (sheetRelationshipIds.count(relationship.id) == 0) {
                carried_->workbook.relationships.push_back(relationship);
            }
        }
        ReadProperties(packageRelationships);
        FollowCarriedRelationships();
        ReadThemeColorsOfKeptTheme();
        document_.carried = std::move(carried_);
        return std::move(document_);
    }

private:
    void ReadStylesAndStrings(const std::vector<Relationship>& workbookRelationships) {
        const Relationship* stylesRelationship = FindRelationshipOfType(workbookRelationships, "styles");
        if (std::optional<std::string> xml = ReadRelatedPart(archive_, stylesRelationship)) {
            StylesPart styles = ReadStyles(*xml, stylesRelationship->target);
            document_.formats = std::move(styles.formats);
            document_.palette = std::move(styles.palette);
            carried_->styles = std::move(styles.carried);
            differentialFormats_ = styles.differentialFormats;
            carriedParts_.Rewritten(stylesRelationship->target);
        }
        const Relationship* stringsRelationship = FindRelationshipOfType(workbookRelationships, "sharedStrings");
        if (std::optional<std::string> xml = ReadRelatedPart(archive_, stringsRelationship)) {
            document_.strings = ReadSharedStrings(*xml, stringsRelationship->target);
            carriedParts_.Rewritten(stringsRelationship->target);
        }
        // The calculation chain lists the cells with formulas; the engine changes them, so Excel
        // rebuilds it.
        if (const Relationship* chain = FindRelationshipOfType(workbookRelationships, "calcChain")) {
            carriedParts_.Rewritten(chain->target);
        }
    }

    // Worksheets are read; chart sheets, dialog sheets and macro sheets are carried whole. Returns
    // each sheet's position among the worksheets, nothing for the others.
    std::vector<std::optional<uint32_t>> ReadSheets(const WorkbookPart& workbook,
                                                    const std::vector<Relationship>& workbookRelationships) {
        StringTableBuilder strings(document_.strings);
        const WorksheetContext context{strings, static_cast<uint32_t>(document_.strings.size()),
                                       static_cast<uint32_t>(document_.formats.size())};
        std::vector<std::optional<uint32_t>> worksheetPositions;
        std::set<std::string> partsSeen;
        const auto relationshipsById = RelationshipsById(workbookRelationships);
        for (const SheetEntry& entry : workbook.sheets) {
            // Excel writes the modules and dialogs of its macro project as sheets with no part.
            if (entry.relationshipId.empty()) {
                const auto position = static_cast<uint32_t>(worksheetPositions.size());
                carried_->sheets.push_back({entry.name, entry.state, position, {}});
                worksheetPositions.emplace_back();
                continue;
            }
            const auto found = relationshipsById.find(entry.relationshipId);
            const Relationship* relationship = found != relationshipsById.end() ? found->second : nullptr;
            if (relationship == nullptr || relationship->external || !archive_.Contains(relationship->target)) {
                ThrowCorrupt("The sheet \"" + entry.name + "\" has no part in the package");
            }
            if (!partsSeen.insert(relationship->target).second) {
                ThrowCorrupt("The sheet \"" + entry.name + "\" shares its part with another sheet");
            }
            if (!HasRelationshipType(*relationship, "worksheet")) {
                if (!IsCarriedSheetType(*relationship)) {
                    ThrowCorrupt("The sheet \"" + entry.name + "\" refers to a part that is no sheet (" +
                                 relationship->target + ")");
                }
                // Kept whole, the part must say what it is, or it could not be written again.
                if (contentTypes_.Of(relationship->target).empty()) {
                    ThrowCorrupt("The sheet \"" + entry.name + "\" has a part of no content type (" +
                                 relationship->target + ")");
                }
                const auto position = static_cast<uint32_t>(worksheetPositions.size());
                carried_->sheets.push_back({entry.name, entry.state, position, *relationship});
                worksheetPositions.emplace_back();
                continue;
            }
            ReadWorksheetPart(entry, relationship->target, context);
            worksheetPositions.emplace_back(static_cast<uint32_t>(document_.sheets.size() - 1));
        }
        if (document_.sheets.empty()) {
            ThrowNotAPackage(path_, "no worksheet");
        }
        for (const CarriedSheet& sheet : carried_->sheets) {
            if (!sheet.relationship.id.empty()) {
                carriedSheetRelationships_.push_back(sheet.relationship);
            }
        }
        return worksheetPositions;
    }

    void ReadWorksheetPart(const SheetEntry& entry, const std::string& partName, const WorksheetContext& context) {
        std::optional<ZipEntryReader> part = archive_.Open(partName);
        if (!part) {
            ThrowCorrupt("Missing worksheet part " + partName);
        }
        SheetDocument& sheet = document_.sheets.emplace_back();
        sheet.name = entry.name;
        sheet.state = entry.state;
        auto carried = std::make_shared<CarriedWorksheet>();
        carried->name = entry.name;
        carried_->worksheetNames.push_back(entry.name);
        const SheetDrawingReferences drawings =
            ReadWorksheet([&](char* buffer, std::size_t size) { return part->Read(buffer, size); }, partName, context,
                          sheet, *carried);
        carriedParts_.Rewritten(partName);
        ReadSheetDrawings(partName, drawings, sheet, *carried);
        DropWhatExcelRepairs(*carried, differentialFormats_);
        sheet.carried = carried;
        carriedWorksheets_.push_back(std::move(carried));
    }

    // The text boxes and charts of the sheet's drawing with the anchors it carries, and its comments
    // with the shapes of their notes. The other relationships of the sheet are kept.
    void ReadSheetDrawings(std::string_view sheetPartName, const SheetDrawingReferences& drawings, SheetDocument& sheet,
                           CarriedWorksheet& carried) {
        const std::vector<Relationship> relationships = ReadRelationships(archive_, sheetPartName);
        const auto related = [&relationships](const std::string& id, std::string_view typeName) -> const Relationship* {
            const Relationship* relationship = FindRelationship(relationships, id);
            return relationship != nullptr && !relationship->external && HasRelationshipType(*relationship, typeName)
                       ? relationship
                       : nullptr;
        };
        std::set<std::string> rewrittenIds;
        const Relationship* drawing = related(drawings.drawing, "drawing");
        if (std::optional<std::string> xml = ReadRelatedPart(archive_, drawing)) {
            carried.drawing.relationships = ReadRelationships(archive_, drawing->target);
            std::set<std::string> chartIds;
            sheet.shapes =
                ReadDrawing(*xml, drawing->target, carried, ChartLoader(carried.drawing.relationships, chartIds));
            std::erase_if(carried.drawing.relationships, [&chartIds](const Relationship& relationship) {
                return chartIds.count(relationship.id) != 0;
            });
            carriedParts_.Rewritten(drawing->target);
            rewrittenIds.insert(drawing->id);
        }
        const Relationship* comments = FindRelationshipOfType(relationships, "comments");
        const Relationship* vml = related(drawings.legacyDrawing, "vmlDrawing");
        if (std::optional<std::string> xml = ReadRelatedPart(archive_, comments)) {
            sheet.comments = ReadComments(*xml, comments->target);
            carriedParts_.Rewritten(comments->target);
            rewrittenIds.insert(comments->id);
            if (std::optional<std::string> shapes = ReadRelatedPart(archive_, vml)) {
                ReadVmlDrawing(*shapes, sheet.comments, carried);
                if (!carried.legacyDrawing.elements.empty()) {
                    carried.legacyDrawing.relationships = ReadRelationships(archive_, vml->target);
                }
                carriedParts_.Rewritten(vml->target);
                rewrittenIds.insert(vml->id);
            }
        } else if (vml != nullptr) {
            // A legacy drawing without comments holds form controls or the like: kept as it is.
            carried.worksheet.elements.push_back({WorksheetElementOrder.Slot("legacyDrawing"), "legacyDrawing",
                                                  "<legacyDrawing r:id=\"" + vml->id + "\"/>"});
        }
        for (const Relationship& relationship : relationships) {
            if (rewrittenIds.count(relationship.id) == 0) {
                carried.worksheet.relationships.push_back(relationship);
            }
        }
    }

    // Reads the charts a drawing's frames show, when charts are read, noting the ids of the
    // relationships to those read: the writer writes them anew.
    ChartFrameLoader ChartLoader(const std::vector<Relationship>& drawingRelationships,
                                 std::set<std::string>& readIds) {
        if (!options_.readCharts) {
            return {};
        }
        return [this, &drawingRelationships, &readIds](std::string_view id) -> std::shared_ptr<const ChartDocument> {
            const Relationship* relationship = FindRelationship(drawingRelationships, id);
            std::shared_ptr<const ChartDocument> chart =
                relationship != nullptr ? charts_.Read(*relationship) : nullptr;
            if (chart) {
                readIds.emplace(id);
            }
            return chart;
        };
    }

    // Names scoped to a worksheet follow it; those scoped to a carried sheet are carried with it.
    void ReadNames(const WorkbookPart& workbook, const std::vector<std::optional<uint32_t>>& worksheetPositions) {
        std::vector<uint32_t> carriedIndex(worksheetPositions.size(), 0);
        for (uint32_t i = 0; i < carried_->sheets.size(); ++i) {
            carriedIndex[carried_->sheets[i].position] = i;
        }
        for (DefinedName name : workbook.names) {
            if (!name.localSheet) {
                document_.names.push_back(std::move(name));
                continue;
            }
            const uint32_t position = *name.localSheet;
            if (position >= worksheetPositions.size()) {
                continue;  // scoped to a sheet the workbook does not have
            }
            if (worksheetPositions[position]) {
                name.localSheet = worksheetPositions[position];
                document_.names.push_back(std::move(name));
            } else {
                name.localSheet.reset();
                carried_->sheetNames.push_back({std::move(name), carriedIndex[position]});
            }
        }
    }

    void ReadProperties(const std::vector<Relationship>& packageRelationships) {
        if (const Relationship* core = FindRelationshipOfType(packageRelationships, "core-properties")) {
            if (std::optional<std::string> xml = archive_.Read(core->target)) {
                document_.properties = ReadDocumentProperties(*xml, core->target, carried_->coreProperties);
            }
            carriedParts_.Rewritten(core->target);
        }
        if (const Relationship* app = FindRelationshipOfType(packageRelationships, "extended-properties")) {
            if (std::optional<std::string> xml = archive_.Read(app->target)) {
                ReadAppProperties(*xml, app->target, carried_->appProperties);
            }
            carriedParts_.Rewritten(app->target);
        }
        carried_->packageRelationships =
            RelationshipsExcept(packageRelationships, {"officeDocument", "core-properties", "extended-properties"});
    }

    // Once every rewritten part is known, the parts the kept relationships lead to are read. A
    // kept relationship to a part that is not kept (missing from the package, or rewritten under
    // another name) would dangle in the saved file: it is left out.
    void FollowCarriedRelationships() {
        carriedParts_.Follow(carried_->packageRelationships);
        carriedParts_.Follow(carried_->workbook.relationships);
        carriedParts_.Follow(carriedSheetRelationships_);
        for (const auto& sheet : carriedWorksheets_) {
            carriedParts_.Follow(sheet->worksheet.relationships);
            carriedParts_.Follow(sheet->drawing.relationships);
            carriedParts_.Follow(sheet->legacyDrawing.relationships);
        }
        const std::vector<std::vector<Relationship>*> chartRelationships = charts_.KeptRelationships();
        for (const std::vector<Relationship>* relationships : chartRelationships) {
            carriedParts_.Follow(*relationships);
        }
        const auto dangling = [this](const Relationship& relationship) {
            return !relationship.external && carried_->parts.count(relationship.target) == 0;
        };
        std::erase_if(carried_->packageRelationships, dangling);
        std::erase_if(carried_->workbook.relationships, dangling);
        for (const auto& sheet : carriedWorksheets_) {
            std::erase_if(sheet->worksheet.relationships, dangling);
            std::erase_if(sheet->drawing.relationships, dangling);
            std::erase_if(sheet->legacyDrawing.relationships, dangling);
        }
        for (std::vector<Relationship>* relationships : chartRelationships) {
            std::erase_if(*relationships, dangling);
        }
    }

    // The workbook's theme is kept as it is; its colour scheme is what theme colours show.
    void ReadThemeColorsOfKeptTheme() {
        const Relationship* theme = FindRelationshipOfType(carried_->workbook.relationships, "theme");
        const auto part = theme != nullptr ? carried_->parts.find(theme->target) : carried_->parts.end();
        if (part == carried_->parts.end()) {
            return;
        }
        if (const std::optional<std::array<uint32_t, 12>> colors = ReadThemeColors(part->second.bytes)) {
            document_.themeColors = *colors;
            document_.themeFromFile = true;
        }
    }

    std::string path_;
    ReadOptions options_;
    ZipArchiveReader archive_;
    ContentTypeMap contentTypes_;
    WorkbookDocument document_;
    std::shared_ptr<CarriedWorkbook> carried_ = std::make_shared<CarriedWorkbook>();
    std::size_t differentialFormats_ = 0;
    CarriedPartsReader carriedParts_;
    ChartPartsReader charts_;
    std::vector<Relationship> carriedSheetRelationships_;
    std::vector<std::shared_ptr<CarriedWorksheet>> carriedWorksheets_;  // the worksheets', while read
};

}  // namespace

WorkbookDocument ReadPackage(const std::string& path, const ReadOptions& options) {
    return PackageReader(path, options).Read();
}

}  // namespace ooxml
