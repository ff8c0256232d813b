#include "ooxml/workbook/workbook_part.hpp"

#include "ooxml/worksheet/unresolvable_references.hpp"

#include <algorithm>

namespace ooxml {

namespace {

bool HasFormulas(const WorkbookDocument& document) {
    return std::any_of(document.sheets.begin(), document.sheets.end(),
                       [](const SheetDocument& sheet) { return !sheet.formulas.empty(); });
}

void WriteProperties(XmlWriter& xml, const WorkbookDocument& document) {
    if (!document.date1904) {
        return;
    }
    xml.StartElement("workbookPr");
    xml.Attribute("date1904", "1");
    xml.EndElement();
}

void WriteProtection(XmlWriter& xml, const WorkbookDocument& document) {
    if (!document.lockStructure && !document.lockWindows) {
        return;
    }
    xml.StartElement("workbookProtection");
    if (document.lockStructure) {
        xml.Attribute("lockStructure", "1");
    }
    if (document.lockWindows) {
        xml.Attribute("lockWindows", "1");
    }
    xml.EndElement();
}

void WriteSheets(XmlWriter& xml, const WorkbookDocument& document, const std::vector<std::string>& relationshipIds) {
    xml.StartElement("sheets");
    for (std::size_t i = 0; i < document.sheets.size(); ++i) {
        const SheetDocument& sheet = document.sheets[i];
        xml.StartElement("sheet");
        xml.Attribute("name", sheet.name);
        xml.Attribute("sheetId", i + 1);
        if (!sheet.state.empty() && sheet.state != "visible") {
            xml.Attribute("state", sheet.state);
        }
        xml.Attribute("r:id", relationshipIds[i]);
        xml.EndElement();
    }
    xml.EndElement();
}

void WriteDefinedNames(XmlWriter& xml, const std::vector<DefinedName>& names) {
    if (names.empty()) {
        return;
    }
    xml.StartElement("definedNames");
    for (const DefinedName& name : names) {
        xml.StartElement("definedName");
        xml.Attribute("name", name.name);
        if (name.localSheet) {
            xml.Attribute("localSheetId", *name.localSheet);
        }
        if (name.hidden) {
            xml.Attribute("hidden", "1");
        }
        xml.Text(WithoutUnresolvableReferences(name.formula));
        xml.EndElement();
    }
    xml.EndElement();
}

}  // namespace

void WriteWorkbookPart(XmlWriter& xml, const WorkbookDocument& document,
                       const std::vector<std::string>& sheetRelationshipIds) {
    xml.Declaration();
    xml.StartElement("workbook");
    xml.Attribute("xmlns", "http://schemas.openxmlformats.org/spreadsheetml/2006/main");
    xml.Attribute("xmlns:r", "http://schemas.openxmlformats.org/officeDocument/2006/relationships");
    WriteProperties(xml, document);
    WriteProtection(xml, document);
    xml.StartElement("bookViews");
    xml.StartElement("workbookView");
    if (document.activeSheet != 0) {
        xml.Attribute("activeTab", document.activeSheet);
    }
    xml.EndElement();
    xml.EndElement();
    WriteSheets(xml, document, sheetRelationshipIds);
    WriteDefinedNames(xml, document.names);
    xml.StartElement("calcPr");
    xml.Attribute("calcId", 191029);
    // The engine does not calculate: a formula it wrote has no result, and a result kept from an opened
    // file may be stale once inputs changed. The results stay for readers that do not calculate, and
    // Excel recalculates every formula on opening.
    if (HasFormulas(document)) {
        xml.Attribute("fullCalcOnLoad", "1");
    }
    xml.EndElement();
    xml.EndElement();
}

}  // namespace ooxml
