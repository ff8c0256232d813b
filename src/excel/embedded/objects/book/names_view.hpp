#pragma once

#include "excel/embedded/model/workbook_model.hpp"

#include <excel/names.hpp>

namespace excel::embedded {

// Workbook.Names (every name) or Worksheet.Names (the names local to that sheet).
class NamesView final : public excel::Names {
public:
    NamesView(std::shared_ptr<WorkbookModel> book, std::shared_ptr<WorksheetModel> localSheet)
        : book_(std::move(book)), localSheet_(std::move(localSheet)) {}

    int32_t Count() override;
    std::shared_ptr<excel::Name> Item(const Variant& index) override;
    std::shared_ptr<excel::Name> Add(const std::string& name, const Variant& refersTo, bool visible) override;

private:
    std::vector<std::shared_ptr<DefinedNameModel>> listed() const;

    std::shared_ptr<WorkbookModel> book_;
    std::shared_ptr<WorksheetModel> localSheet_;
};

// The formula a RefersTo argument gives: "=..." as written, a Range as its absolute reference,
// any other value as a constant (text quoted).
std::string FormulaFromRefersTo(const Variant& refersTo);

}  // namespace excel::embedded
