#pragma once

#include "excel/embedded/model/worksheet_model.hpp"

#include <excel/page_setup.hpp>

namespace excel::embedded {

class PageSetupView final : public excel::PageSetup {
public:
    explicit PageSetupView(std::shared_ptr<WorksheetModel> sheet) : sheet_(std::move(sheet)) {}

    std::shared_ptr<excel::Worksheet> Parent() override;
    bool PrintGridlines() override;
    void SetPrintGridlines(bool print) override;

private:
    std::shared_ptr<WorksheetModel> sheet_;
};

}  // namespace excel::embedded
