#pragma once

#include "excel/embedded/model/workbook_model.hpp"

#include <excel/workbook.hpp>

namespace excel::embedded {

class WorkbookView final : public excel::Workbook {
public:
    explicit WorkbookView(std::shared_ptr<WorkbookModel> model) : model_(std::move(model)) {}

    std::shared_ptr<excel::Application> Application() override;
    std::string Name() override;
    std::string FullName() override;
    std::string Path() override;

    std::shared_ptr<excel::Sheets> Worksheets() override;
    std::shared_ptr<excel::Worksheet> Worksheets(const Variant& index) override;
    std::shared_ptr<excel::Sheets> Sheets() override;
    std::shared_ptr<excel::Worksheet> Sheets(const Variant& index) override;
    std::shared_ptr<excel::Worksheet> ActiveSheet() override;
    std::shared_ptr<excel::Names> Names() override;
    std::shared_ptr<excel::Windows> Windows() override;
    std::shared_ptr<excel::Window> Windows(const Variant& index) override;

    Variant Colors(const Variant& index) override;
    void SetColors(const Variant& index, const Variant& rgb) override;
    void ResetColors() override;

    void Protect(const Variant& password, const Variant& structure, const Variant& windows) override;
    void Unprotect(const Variant& password) override;
    bool ProtectStructure() override;
    bool ProtectWindows() override;
    bool Date1904() override;
    void SetDate1904(bool date1904) override;
    bool ReadOnly() override;
    bool Saved() override;

    void Activate() override;
    void SaveAs(const std::string& fileName, const Variant& fileFormat) override;
    void Save() override;
    void Close(const Variant& saveChanges, const Variant& fileName) override;

    const void* Identity() const override { return model_.get(); }

private:
    WorkbookModel& model() const;

    std::shared_ptr<WorkbookModel> model_;
};

}  // namespace excel::embedded
