#pragma once

#include "excel/embedded/model/workbook_model.hpp"

#include <excel/sheets.hpp>

namespace excel::embedded {

// Workbook.Sheets, every sheet of the workbook, or Workbook.Worksheets, its worksheets alone.
class SheetsView final : public excel::Sheets {
public:
    enum class Listing { AllSheets, Worksheets };

    SheetsView(std::shared_ptr<WorkbookModel> model, Listing listing) : model_(std::move(model)), listing_(listing) {}

    std::shared_ptr<excel::Application> Application() override;
    std::shared_ptr<excel::Workbook> Parent() override;
    int32_t Count() override;
    std::shared_ptr<excel::Worksheet> Item(const Variant& index) override;
    std::shared_ptr<excel::Worksheet> Add(const Variant& before, const Variant& after, const Variant& count) override;

private:
    WorkbookModel& model() const;

    std::shared_ptr<WorkbookModel> model_;
    Listing listing_;
};

}  // namespace excel::embedded
