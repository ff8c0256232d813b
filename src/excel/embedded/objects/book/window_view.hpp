#pragma once

#include "excel/embedded/model/workbook_model.hpp"

#include <excel/window.hpp>

namespace excel::embedded {

// The one window of a workbook; its view settings act on the workbook's active sheet.
class WindowView final : public excel::Window {
public:
    explicit WindowView(std::shared_ptr<WorkbookModel> model) : model_(std::move(model)) {}

    std::shared_ptr<excel::Application> Application() override;
    std::shared_ptr<excel::Workbook> Parent() override;
    std::shared_ptr<excel::Worksheet> ActiveSheet() override;
    bool DisplayGridlines() override;
    void SetDisplayGridlines(bool display) override;

private:
    WorksheetModel& activeSheet() const;

    std::shared_ptr<WorkbookModel> model_;
};

}  // namespace excel::embedded
