#pragma once

#include "excel/embedded/model/workbook_model.hpp"

#include <cstdint>
#include <functional>
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
    // The workbook open from the file at fullName, or none.
    std::shared_ptr<WorkbookModel> WorkbookOpenFrom(const std::string& fullName) const;
    // A workbook opened from the file at fullName, filled by load; it becomes active. Refused while
    // a workbook of the same file name is open.
    std::shared_ptr<WorkbookModel> AddOpenedWorkbook(const std::string& fullName,
                                                     const std::function<void(WorkbookModel&)>& load);
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
