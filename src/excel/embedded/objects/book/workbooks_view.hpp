#pragma once

#include "excel/embedded/model/application_model.hpp"

#include <excel/workbooks.hpp>

namespace excel::embedded {

class WorkbooksView final : public excel::Workbooks {
public:
    explicit WorkbooksView(std::shared_ptr<ApplicationModel> model) : model_(std::move(model)) {}

    std::shared_ptr<excel::Application> Application() override;
    int32_t Count() override;
    std::shared_ptr<excel::Workbook> Item(const Variant& index) override;
    std::shared_ptr<excel::Workbook> Add(const Variant& templateArg) override;
    std::shared_ptr<excel::Workbook> Open(const std::string& fileName) override;

private:
    std::shared_ptr<ApplicationModel> model_;
};

}  // namespace excel::embedded
