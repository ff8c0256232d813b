#pragma once

#include "excel/embedded/model/workbook_model.hpp"

#include <excel/name.hpp>

namespace excel::embedded {

class NameView final : public excel::Name {
public:
    NameView(std::shared_ptr<WorkbookModel> book, std::shared_ptr<DefinedNameModel> name)
        : book_(std::move(book)), name_(std::move(name)) {}

    std::string GetName() override;
    void SetName(const std::string& name) override;
    std::string RefersTo() override;
    void SetRefersTo(const Variant& refersTo) override;
    std::string Value() override;
    std::shared_ptr<excel::Range> RefersToRange() override;
    bool Visible() override;
    void SetVisible(bool visible) override;
    int32_t Index() override;
    void Delete() override;

private:
    DefinedNameModel& name() const;

    std::shared_ptr<WorkbookModel> book_;
    std::shared_ptr<DefinedNameModel> name_;
};

}  // namespace excel::embedded
