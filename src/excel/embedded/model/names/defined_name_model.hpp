#pragma once

#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace excel::embedded {

class WorksheetModel;

// A defined name: workbook-level, or local to a sheet.
struct DefinedNameModel {
    std::string name;
    std::string formula;  // without the leading "="
    std::shared_ptr<WorksheetModel> localSheet;
    bool visible = true;
    bool deleted = false;
    // What an opened file said of the name beyond the model (its comment, that it names a macro,
    // ...), as attribute names and values, saved with it again.
    std::vector<std::pair<std::string, std::string>> fileAttributes = {};
};

}  // namespace excel::embedded
