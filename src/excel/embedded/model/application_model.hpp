#pragma once

#include "excel/embedded/model/workbook_model.hpp"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace excel::embedded {

// The engine instance: its open workbooks and settings.
class ApplicationModel : public std::enable_shared_from_this<ApplicationModel> {
public:
    ApplicationModel();
    ~ApplicationModel();
    ApplicationModel(const ApplicationModel&) = delete;
    ApplicationModel& operator=(const ApplicationModel&) = delete;

    const std::vector<std::shared_ptr<WorkbookModel>>& Workbooks() const { return workbooks_; }
    std::shared_ptr<WorkbookModel> FindWorkbook(std::string_view name) const;
    // A new workbook "BookN" with SheetsInNewWorkbook sheets; it becomes active.
    std::shared_ptr<WorkbookModel> AddWorkbook();
    // Opens the .xlsx at path, or answers the workbook already open from it.
    std::shared_ptr<WorkbookModel> OpenWorkbook(const std::string& path);
    void CloseWorkbook(WorkbookModel& book);
    WorkbookModel* ActiveWorkbook() const { return activeWorkbook_; }
    void ActivateWorkbook(WorkbookModel& book) { activeWorkbook_ = &book; }

    int32_t SheetsInNewWorkbook() const { return sheetsInNewWorkbook_; }
    void SetSheetsInNewWorkbook(int32_t count);
    std::string userName;
    bool displayAlerts = true;

private:
    std::vector<std::shared_ptr<WorkbookModel>> workbooks_;
    WorkbookModel* activeWorkbook_ = nullptr;
    int32_t sheetsInNewWorkbook_ = 1;
    int32_t nextBookNumber_ = 1;
};

}  // namespace excel::embedded
