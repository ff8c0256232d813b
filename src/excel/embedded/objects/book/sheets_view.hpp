#pragma once

#include "excel/embedded/model/workbook_model.hpp"

#include <excel/sheets.hpp>

namespace excel::embedded {

class SheetsView final : public excel::Sheets {
public:
    explicit SheetsView(std::shared_ptr<WorkbookModel> model) : model_(std::move(model)) {}

    std::shared_ptr<excel::Application> Application() override;
    std::shared_ptr<excel::Workbook> Parent() override;
    int32_t Count() override;
    std::shared_ptr<excel::Worksheet> Item(const Variant& index) override;
    std::shared_ptr<excel::Worksheet> Add(const Variant& before, const Variant& after, const Variant& count) override;

private:
    WorkbookModel& model() const;

    std::shared_ptr<WorkbookModel> model_;
};

}  // namespace excel::embedded
