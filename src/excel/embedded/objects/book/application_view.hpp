#pragma once

#include "excel/embedded/model/application_model.hpp"

#include <excel/application.hpp>

namespace excel::embedded {

class ApplicationView final : public excel::Application {
public:
    explicit ApplicationView(std::shared_ptr<ApplicationModel> model) : model_(std::move(model)) {}

    std::shared_ptr<excel::Workbooks> Workbooks() override;
    std::shared_ptr<excel::Workbook> Workbooks(const Variant& index) override;
    std::shared_ptr<excel::Workbook> ActiveWorkbook() override;
    std::shared_ptr<excel::Worksheet> ActiveSheet() override;
    std::shared_ptr<excel::Window> ActiveWindow() override;

    int32_t SheetsInNewWorkbook() override;
    void SetSheetsInNewWorkbook(int32_t count) override;
    std::string UserName() override;
    void SetUserName(const std::string& name) override;
    bool DisplayAlerts() override;
    void SetDisplayAlerts(bool display) override;
    std::string Version() override;

    std::shared_ptr<excel::Range> Union(const std::shared_ptr<excel::Range>& arg1,
                                        const std::shared_ptr<excel::Range>& arg2,
                                        const std::vector<std::shared_ptr<excel::Range>>& more) override;

    const void* Identity() const override { return model_.get(); }

private:
    std::shared_ptr<ApplicationModel> model_;
};

}  // namespace excel::embedded
