#pragma once

#include "excel/embedded/model/worksheet_model.hpp"

#include <excel/worksheet.hpp>

namespace excel::embedded {

class WorksheetView final : public excel::Worksheet {
public:
    explicit WorksheetView(std::shared_ptr<WorksheetModel> model) : model_(std::move(model)) {}

    // The sheet's model; Object required once the sheet was deleted or its workbook closed.
    WorksheetModel& Model() const;

    std::shared_ptr<excel::Application> Application() override;
    std::shared_ptr<excel::Workbook> Parent() override;
    std::string Name() override;
    void SetName(const std::string& name) override;
    int32_t Index() override;
    int32_t Visible() override;
    void SetVisible(int32_t visibility) override;

    std::shared_ptr<excel::Range> Cells() override;
    std::shared_ptr<excel::Range> Cells(int32_t row, int32_t column) override;
    std::shared_ptr<excel::Range> Rows() override;
    std::shared_ptr<excel::Range> Rows(int32_t index) override;
    std::shared_ptr<excel::Range> Columns() override;
    std::shared_ptr<excel::Range> Columns(int32_t index) override;
    std::shared_ptr<excel::Range> Range(const std::string& address) override;
    std::shared_ptr<excel::Range> Range(const std::shared_ptr<excel::Range>& cell1,
                                        const std::shared_ptr<excel::Range>& cell2) override;
    std::shared_ptr<excel::Range> UsedRange() override;
    std::shared_ptr<excel::Names> Names() override;

    Variant Evaluate(const std::string& expression) override;

    std::shared_ptr<excel::Shapes> Shapes() override;
    std::shared_ptr<excel::ChartObjects> ChartObjects() override;
    std::shared_ptr<excel::ChartObject> ChartObjects(const Variant& index) override;
    std::shared_ptr<excel::PageSetup> PageSetup() override;
    bool DisplayPageBreaks() override;
    void SetDisplayPageBreaks(bool display) override;
    double StandardWidth() override;
    double StandardHeight() override;

    void Activate() override;
    void Select() override;
    void Delete() override;

    const void* Identity() const override { return model_.get(); }

private:
    std::shared_ptr<WorksheetModel> model_;
};

}  // namespace excel::embedded
