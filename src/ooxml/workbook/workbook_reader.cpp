#include "ooxml/workbook/workbook_reader.hpp"

#include "ooxml/carried/carried_attributes.hpp"
#include "ooxml/carried/carried_element_collector.hpp"
#include "ooxml/workbook/workbook_element_order.hpp"
#include "ooxml/xml/xml_node_access.hpp"
#include "ooxml/xml/xml_part_parser.hpp"

namespace ooxml {

namespace {

SheetEntry ReadSheetEntry(pugi::xml_node sheet) {
    SheetEntry entry;
    entry.name = AttributeText(sheet, "name");
    const std::string_view state = AttributeText(sheet, "state");
    if (state == "hidden" || state == "veryHidden") {
        entry.state = state;
    }
    entry.relationshipId = AttributeText(sheet, "id");
    return entry;
}

DefinedName ReadDefinedName(pugi::xml_node node) {
    DefinedName name;
    name.name = AttributeText(node, "name");
    std::string_view formula = node.child_value();
    if (!formula.empty() && formula.front() == '=') {
        formula.remove_prefix(1);
    }
    name.formula = formula;
    name.localSheet = AttributeUnsigned(node, "localSheetId");
    name.hidden = AttributeBool(node, "hidden", false);
    name.otherAttributes = AttributesExcept(node, {"name", "localSheetId", "hidden"});
    return name;
}

}  // namespace

WorkbookPart ReadWorkbook(std::string& xml, std::string_view partName, CarriedWorkbook& carried) {
    pugi::xml_document document;
    ParseXmlPart(document, xml, partName);
    const pugi::xml_node workbook = document.document_element();
    WorkbookPart part;
    part.date1904 = AttributeBool(FirstChild(workbook, "workbookPr"), "date1904", false);
    ForEachChild(FirstChild(workbook, "sheets"), "sheet",
                 [&](pugi::xml_node sheet) { part.sheets.push_back(ReadSheetEntry(sheet)); });
    ForEachChild(FirstChild(workbook, "definedNames"), "definedName",
                 [&](pugi::xml_node name) { part.names.push_back(ReadDefinedName(name)); });
    const pugi::xml_node view = FirstChild(FirstChild(workbook, "bookViews"), "workbookView");
    part.activeTab = AttributeUnsigned(view, "activeTab").value_or(0);
    const pugi::xml_node protection = FirstChild(workbook, "workbookProtection");
    part.lockStructure = AttributeBool(protection, "lockStructure", false);
    part.lockWindows = AttributeBool(protection, "lockWindows", false);

    carried.workbook.rootAttributes = AttributesExcept(workbook, {"xmlns", "xmlns:r"});
    carried.workbookPrAttributes = AttributesExcept(FirstChild(workbook, "workbookPr"), {"date1904"});
    carried.protectionAttributes = AttributesExcept(protection, {"lockStructure", "lockWindows"});
    // The first tab the tab bar shows is kept by its sheet's name: sheets may come and go before
    // the workbook is saved again.
    carried.bookViewAttributes = AttributesExcept(view, {"activeTab", "firstSheet"});
    if (const std::optional<uint32_t> firstSheet = AttributeUnsigned(view, "firstSheet");
        firstSheet && *firstSheet < part.sheets.size()) {
        carried.firstSheet = part.sheets[*firstSheet].name;
    }
    carried.calcAttributes = AttributesExcept(FirstChild(workbook, "calcPr"), {"calcId", "fullCalcOnLoad"});
    CarriedElementCollector elements(WorkbookElementOrder, carried.workbook.elements);
    for (pugi::xml_node child = workbook.first_child(); child; child = child.next_sibling()) {
        if (child.type() != pugi::node_element) {
            continue;
        }
        const std::string_view name = LocalName(child);
        if (name == "workbookPr" || name == "workbookProtection" || name == "bookViews" || name == "sheets" ||
            name == "definedNames" || name == "calcPr") {
            elements.Pass(name);
        } else {
            elements.Carry(name, ElementMarkup(child));
        }
    }
    return part;
}

}  // namespace ooxml
