#pragma once

#include <memory>
#include <string>

namespace excel::embedded {

class WorksheetModel;

// A defined name: workbook-level, or local to a sheet.
struct DefinedNameModel {
    std::string name;
    std::string formula;  // without the leading "="
    std::shared_ptr<WorksheetModel> localSheet;
    bool visible = true;
    bool deleted = false;
};

}  // namespace excel::embedded
