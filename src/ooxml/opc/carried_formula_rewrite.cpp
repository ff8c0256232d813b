#include "ooxml/opc/carried_formula_rewrite.hpp"

#include "ooxml/carried/carried_attributes.hpp"
#include "ooxml/document/chart_document.hpp"
#include "ooxml/reference/formula_reference_scanner.hpp"
#include "ooxml/xml/xml_node_access.hpp"
#include "ooxml/xml/xml_part_parser.hpp"

#include <pugixml.hpp>

#include <algorithm>
#include <array>
#include <memory>
#include <span>

namespace ooxml {

namespace {

// Rewrites the text of every element of the tree named by one of the local names; whether any changed.
bool RewriteElementTexts(pugi::xml_node root, std::span<const std::string_view> names,
                         const std::function<std::string(std::string_view)>& rewrite) {
    bool changed = false;
    for (pugi::xml_node node = root; node; node = node.next_sibling()) {
        if (node.type() != pugi::node_element) {
            continue;
        }
        pugi::xml_node text = node.first_child();
        const bool holdsText = text.type() == pugi::node_pcdata || text.type() == pugi::node_cdata;
        if (holdsText && std::find(names.begin(), names.end(), LocalName(node)) != names.end()) {
            const std::string rewritten = rewrite(text.value());
            if (rewritten != text.value()) {
                text.set_value(rewritten.c_str());
                changed = true;
            }
        } else {
            changed = RewriteElementTexts(node.first_child(), names, rewrite) || changed;
        }
    }
    return changed;
}

// A hyperlink's place in the workbook ("Data!B2") is a reference as a formula writes it.
bool RewriteHyperlinkLocations(pugi::xml_node hyperlinks, const std::function<std::string(std::string_view)>& rewrite) {
    bool changed = false;
    for (pugi::xml_node hyperlink : hyperlinks.children()) {
        if (pugi::xml_attribute location = Attribute(hyperlink, "location")) {
            const std::string rewritten = rewrite(location.value());
            if (rewritten != location.value()) {
                location.set_value(rewritten.c_str());
                changed = true;
            }
        }
    }
    return changed;
}

constexpr std::array<std::string_view, 4> RuleFormulaNames{"formula", "formula1", "formula2", "f"};

void RewriteSheetFormulas(SheetDocument& sheet, std::size_t index, const CarriedFormulaRewrite& rewrite) {
    const auto onSheet = [&](std::string_view formula) { return rewrite(formula, index); };
    std::shared_ptr<CarriedWorksheet> changed;
    for (std::size_t i = 0; i < sheet.carried->worksheet.elements.size(); ++i) {
        const CarriedElement& element = sheet.carried->worksheet.elements[i];
        const bool hyperlinks = element.name == "hyperlinks";
        if (!hyperlinks && element.name != "conditionalFormatting" && element.name != "dataValidations" &&
            element.name != "extLst") {
            continue;
        }
        pugi::xml_document document;
        if (!document.load_string(element.xml.c_str(), XmlPartParseOptions)) {
            continue;
        }
        const pugi::xml_node root = document.document_element();
        if (hyperlinks ? RewriteHyperlinkLocations(root, onSheet)
                       : RewriteElementTexts(root.first_child(), RuleFormulaNames, onSheet)) {
            if (!changed) {
                changed = std::make_shared<CarriedWorksheet>(*sheet.carried);
            }
            changed->worksheet.elements[i].xml = ElementMarkup(root);
        }
    }
    if (changed) {
        sheet.carried = std::move(changed);
    }
}

bool IsChart(const CarriedPart& part) {
    return part.contentType.ends_with("drawingml.chart+xml") || part.contentType.ends_with("chartex+xml");
}

bool IsPivotCache(const CarriedPart& part) {
    return part.contentType.ends_with("pivotCacheDefinition+xml");
}

// A sheet name as a formula's prefix writes it: quoted, its quotes doubled.
std::string QuotedSheet(std::string_view name) {
    std::string quoted = "'";
    for (const char c : name) {
        quoted += c;
        if (c == '\'') {
            quoted += c;
        }
    }
    return quoted + "'";
}

// A pivot cache's source range is a sheet and a range in attributes of their own: rewritten as
// the reference they make together, and left as it was when the rewrite leaves no cells.
bool RewritePivotSource(pugi::xml_node definition, const CarriedFormulaRewrite& rewrite) {
    const pugi::xml_node source = FirstChild(FirstChild(definition, "cacheSource"), "worksheetSource");
    pugi::xml_attribute ref = Attribute(source, "ref");
    pugi::xml_attribute sheet = Attribute(source, "sheet");
    if (!ref || !sheet) {
        return false;
    }
    const std::string formula = QuotedSheet(sheet.value()) + "!" + ref.value();
    std::optional<FormulaReference> result;
    std::string newSheet;
    RewriteFormulaReferences(rewrite(formula, std::nullopt), [&](const FormulaReference& reference) {
        if (std::optional<std::string> local = reference.LocalSheet()) {
            newSheet = *local;
            result = reference;
        }
        return std::optional<std::string>();
    });
    if (!result) {
        return false;
    }
    const std::string newRef = ReferenceText(*result, result->Block());
    if (newSheet == sheet.value() && newRef == ref.value()) {
        return false;
    }
    sheet.set_value(newSheet.c_str());
    ref.set_value(newRef.c_str());
    return true;
}

constexpr std::array<std::string_view, 1> ChartFormulaNames{"f"};

void RewritePartFormulas(WorkbookDocument& document, const CarriedFormulaRewrite& rewrite) {
    const auto onNoSheet = [&](std::string_view formula) { return rewrite(formula, std::nullopt); };
    for (const auto& [name, part] : document.carried->parts) {
        const bool chart = IsChart(part);
        if (!chart && !IsPivotCache(part)) {
            continue;
        }
        const auto moved = document.movedParts.find(name);
        const std::string& bytes = moved != document.movedParts.end() ? moved->second : part.bytes;
        pugi::xml_document xml;
        if (!xml.load_buffer(bytes.data(), bytes.size(), XmlPartParseOptions | pugi::parse_declaration)) {
            continue;
        }
        const pugi::xml_node root = xml.document_element();
        if (chart ? RewriteElementTexts(root.first_child(), ChartFormulaNames, onNoSheet)
                  : RewritePivotSource(root, rewrite)) {
            document.movedParts[name] = DocumentMarkup(xml);
        }
    }
}

// Rewrites the formulas of a piece of chart markup kept as the file wrote it (a multi-level
// reference's children, a carried element); whether any changed.
bool RewriteChartMarkup(std::string& markup, bool fragment, const std::function<std::string(std::string_view)>& rewrite) {
    if (markup.find("f>") == std::string::npos) {
        return false;  // no formula element in it
    }
    pugi::xml_document xml;
    const std::string text = fragment ? "<kept>" + markup + "</kept>" : markup;
    if (!xml.load_string(text.c_str(), XmlPartParseOptions)) {
        return false;
    }
    const pugi::xml_node root = xml.document_element();
    if (!RewriteElementTexts(fragment ? root.first_child() : root, ChartFormulaNames, rewrite)) {
        return false;
    }
    if (fragment) {
        markup.clear();
        for (pugi::xml_node child : root.children()) {
            markup += ElementMarkup(child);
        }
    } else {
        markup = ElementMarkup(root);
    }
    return true;
}

void RewriteCarriedElements(std::vector<CarriedElement>& elements,
                            const std::function<std::string(std::string_view)>& rewrite) {
    for (CarriedElement& element : elements) {
        RewriteChartMarkup(element.xml, false, rewrite);
    }
}

void RewriteKeptData(ChartData& data, const std::function<std::string(std::string_view)>& rewrite) {
    if (data.kind == ChartData::Kind::Other) {
        RewriteChartMarkup(data.markup, true, rewrite);
    }
}

void RewriteTitle(std::optional<ChartTitle>& title, const std::function<std::string(std::string_view)>& rewrite) {
    if (!title) {
        return;
    }
    if (title->reference.kind != ChartData::Kind::None) {
        title->reference.formula = rewrite(title->reference.formula);
    }
    RewriteCarriedElements(title->carried, rewrite);
}

// What an opened chart keeps as the file wrote it: titles taken from cells, data the engine does
// not read, and the elements it carries. The series' own references are the engine's, which
// follow their cells as the edits happen.
void RewriteChartKeptFormulas(ChartDocument& chart, const std::function<std::string(std::string_view)>& rewrite) {
    RewriteTitle(chart.title, rewrite);
    RewriteCarriedElements(chart.carried.elements, rewrite);
    RewriteCarriedElements(chart.chartCarried, rewrite);
    RewriteCarriedElements(chart.plotArea.carried, rewrite);
    for (ChartGroup& group : chart.plotArea.groups) {
        RewriteCarriedElements(group.carried, rewrite);
        for (ChartSeries& series : group.series) {
            RewriteCarriedElements(series.carried, rewrite);
            RewriteKeptData(series.categories, rewrite);
            RewriteKeptData(series.values, rewrite);
        }
    }
    for (ChartAxis& axis : chart.plotArea.axes) {
        RewriteTitle(axis.title, rewrite);
        RewriteCarriedElements(axis.carried, rewrite);
    }
}

void RewriteSheetCharts(SheetDocument& sheet, const CarriedFormulaRewrite& rewrite) {
    const auto onNoSheet = [&](std::string_view formula) { return rewrite(formula, std::nullopt); };
    for (DrawingShape& shape : sheet.shapes) {
        if (shape.chart && !shape.chart->carried.Empty()) {
            auto changed = std::make_shared<ChartDocument>(*shape.chart);
            RewriteChartKeptFormulas(*changed, onNoSheet);
            shape.chart = std::move(changed);
        }
    }
}

}  // namespace

void RewriteCarriedFormulas(WorkbookDocument& document, const CarriedFormulaRewrite& rewrite) {
    for (std::size_t i = 0; i < document.sheets.size(); ++i) {
        if (document.sheets[i].carried) {
            RewriteSheetFormulas(document.sheets[i], i, rewrite);
        }
        RewriteSheetCharts(document.sheets[i], rewrite);
    }
    if (document.carried) {
        RewritePartFormulas(document, rewrite);
    }
}

}  // namespace ooxml
