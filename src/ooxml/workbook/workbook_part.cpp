#include "ooxml/workbook/workbook_part.hpp"

#include "ooxml/carried/carried_attributes.hpp"
#include "ooxml/carried/carried_element_writer.hpp"
#include "ooxml/document/sheet_rows.hpp"
#include "ooxml/workbook/workbook_element_order.hpp"
#include "ooxml/worksheet/unresolvable_references.hpp"

#include <algorithm>

namespace ooxml {

namespace {

const std::vector<CarriedAttribute> NoAttributes;

bool AnySheetHasFormulas(const WorkbookDocument& document) {
    return std::any_of(document.sheets.begin(), document.sheets.end(),
                       [](const SheetDocument& sheet) { return HasFormulas(sheet); });
}

class WorkbookWriter {
public:
    WorkbookWriter(XmlWriter& xml, const WorkbookDocument& document, const SheetOrder& order,
                   const std::vector<std::string>& sheetRelationshipIds, const ReferenceTargets& targets)
        : xml_(xml),
          document_(document),
          carried_(document.carried.get()),
          order_(order),
          sheetRelationshipIds_(sheetRelationshipIds),
          targets_(targets) {}

    // The elements in the order the workbook schema requires, the ones the opened workbook had
    // beyond the model among them.
    void Write() {
        xml_.Declaration();
        xml_.StartElement("workbook");
        xml_.Attribute("xmlns", "http://schemas.openxmlformats.org/spreadsheetml/2006/main");
        xml_.Attribute("xmlns:r", "http://schemas.openxmlformats.org/officeDocument/2006/relationships");
        if (carried_ != nullptr) {
            WriteCarriedAttributes(xml_, carried_->workbook.rootAttributes);
        }
        CarriedElementWriter carried(xml_, carried_ != nullptr ? &carried_->workbook.elements : nullptr);
        const auto before = [&carried](std::string_view name) { carried.Before(WorkbookElementOrder.Slot(name)); };
        before("workbookPr");
        WriteProperties();
        before("workbookProtection");
        WriteProtection();
        before("bookViews");
        WriteViews();
        before("sheets");
        WriteSheets();
        before("definedNames");
        WriteDefinedNames();
        before("calcPr");
        WriteCalculation();
        carried.Rest();
        xml_.EndElement();
    }

private:
    const std::vector<CarriedAttribute>& Carried(std::vector<CarriedAttribute> CarriedWorkbook::*attributes) const {
        return carried_ != nullptr ? carried_->*attributes : NoAttributes;
    }

    void WriteProperties() {
        const std::vector<CarriedAttribute>& attributes = Carried(&CarriedWorkbook::workbookPrAttributes);
        if (!document_.date1904 && attributes.empty()) {
            return;
        }
        xml_.StartElement("workbookPr");
        if (document_.date1904) {
            xml_.Attribute("date1904", "1");
        }
        WriteCarriedAttributes(xml_, attributes);
        xml_.EndElement();
    }

    // The password hash and the other settings of an opened workbook's protection stay with it
    // while the protection is the file's; a password the engine set is written as its legacy hash.
    void WriteProtection() {
        const std::vector<CarriedAttribute>& attributes =
            document_.passwordFromFile ? Carried(&CarriedWorkbook::protectionAttributes) : NoAttributes;
        if (!document_.lockStructure && !document_.lockWindows && attributes.empty()) {
            return;
        }
        xml_.StartElement("workbookProtection");
        WriteCarriedAttributes(xml_, attributes);
        if (!document_.passwordFromFile && !document_.passwordVerifier.empty()) {
            xml_.Attribute("workbookPassword", document_.passwordVerifier);
        }
        if (document_.lockStructure) {
            xml_.Attribute("lockStructure", "1");
        }
        if (document_.lockWindows) {
            xml_.Attribute("lockWindows", "1");
        }
        xml_.EndElement();
    }

    void WriteViews() {
        xml_.StartElement("bookViews");
        xml_.StartElement("workbookView");
        WriteCarriedAttributes(xml_, Carried(&CarriedWorkbook::bookViewAttributes));
        if (const std::optional<uint32_t> firstSheet = FirstSheetPosition(); firstSheet && *firstSheet != 0) {
            xml_.Attribute("firstSheet", *firstSheet);
        }
        const uint32_t activeTab =
            order_.worksheetPositions.empty() ? 0 : order_.worksheetPositions[document_.activeSheet];
        if (activeTab != 0) {
            xml_.Attribute("activeTab", activeTab);
        }
        xml_.EndElement();
        xml_.EndElement();
    }

    // Where the sheet the tab bar showed first now is, if it is still there.
    std::optional<uint32_t> FirstSheetPosition() const {
        if (document_.carried == nullptr || document_.carried->firstSheet.empty()) {
            return std::nullopt;
        }
        for (uint32_t position = 0; position < order_.entries.size(); ++position) {
            const SheetOrder::Entry& entry = order_.entries[position];
            const std::string& name =
                entry.carried ? document_.carried->sheets[entry.index].name : document_.sheets[entry.index].name;
            if (name == document_.carried->firstSheet) {
                return position;
            }
        }
        return std::nullopt;
    }

    void WriteSheet(const std::string& name, std::size_t position, const std::string& state, const std::string& id) {
        xml_.StartElement("sheet");
        xml_.Attribute("name", name);
        xml_.Attribute("sheetId", position + 1);
        if (!state.empty() && state != "visible") {
            xml_.Attribute("state", state);
        }
        xml_.Attribute("r:id", id);
        xml_.EndElement();
    }

    void WriteSheets() {
        xml_.StartElement("sheets");
        for (std::size_t position = 0; position < order_.entries.size(); ++position) {
            const SheetOrder::Entry& entry = order_.entries[position];
            if (entry.carried) {
                const CarriedSheet& sheet = carried_->sheets[entry.index];
                WriteSheet(sheet.name, position, sheet.state, sheet.relationship.id);
            } else {
                const SheetDocument& sheet = document_.sheets[entry.index];
                WriteSheet(sheet.name, position, sheet.state, sheetRelationshipIds_[entry.index]);
            }
        }
        xml_.EndElement();
    }

    void WriteDefinedName(const DefinedName& name, std::optional<uint32_t> localSheetPosition) {
        xml_.StartElement("definedName");
        xml_.Attribute("name", name.name);
        if (localSheetPosition) {
            xml_.Attribute("localSheetId", *localSheetPosition);
        }
        if (name.hidden) {
            xml_.Attribute("hidden", "1");
        }
        WriteCarriedAttributes(xml_, name.otherAttributes);
        xml_.Text(name.formula.find('[') == std::string::npos ? name.formula
                                                              : WithoutUnresolvableReferences(name.formula, targets_));
        xml_.EndElement();
    }

    void WriteDefinedNames() {
        const bool carriedNames = carried_ != nullptr && !carried_->sheetNames.empty();
        if (document_.names.empty() && !carriedNames) {
            return;
        }
        xml_.StartElement("definedNames");
        for (const DefinedName& name : document_.names) {
            WriteDefinedName(
                name, name.localSheet ? std::optional(order_.worksheetPositions[*name.localSheet]) : std::nullopt);
        }
        if (carriedNames) {
            for (const CarriedSheetName& name : carried_->sheetNames) {
                WriteDefinedName(name.name, order_.carriedPositions[name.carriedSheet]);
            }
        }
        xml_.EndElement();
    }

    void WriteCalculation() {
        xml_.StartElement("calcPr");
        xml_.Attribute("calcId", 191029);
        WriteCarriedAttributes(xml_, Carried(&CarriedWorkbook::calcAttributes));
        // The engine does not calculate: a formula it wrote has no result, and a result kept from an
        // opened file may be stale once inputs changed. The results stay for readers that do not
        // calculate, and Excel recalculates every formula on opening.
        if (AnySheetHasFormulas(document_)) {
            xml_.Attribute("fullCalcOnLoad", "1");
        }
        xml_.EndElement();
    }

    XmlWriter& xml_;
    const WorkbookDocument& document_;
    const CarriedWorkbook* carried_;  // null for a workbook the engine made
    const SheetOrder& order_;
    const std::vector<std::string>& sheetRelationshipIds_;
    const ReferenceTargets& targets_;
};

}  // namespace

void WriteWorkbookPart(XmlWriter& xml, const WorkbookDocument& document, const SheetOrder& order,
                       const std::vector<std::string>& sheetRelationshipIds, const ReferenceTargets& targets) {
    WorkbookWriter(xml, document, order, sheetRelationshipIds, targets).Write();
}

}  // namespace ooxml
