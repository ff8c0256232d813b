#pragma once

#include <excel/fwd.hpp>
#include <excel/object.hpp>
#include <excel/variant.hpp>

#include <cstdint>
#include <memory>
#include <string>

namespace excel {

class Workbooks : public Object {
public:
    virtual std::shared_ptr<excel::Application> Application() = 0;
    virtual int32_t Count() = 0;
    // By 1-based position or by workbook name (case-insensitive).
    virtual std::shared_ptr<excel::Workbook> Item(const Variant& index) = 0;
    // A new workbook with Application.SheetsInNewWorkbook worksheets; it becomes the active one.
    virtual std::shared_ptr<excel::Workbook> Add(const Variant& templateArg = {}) = 0;
    virtual std::shared_ptr<excel::Workbook> Open(const std::string& fileName) = 0;
};

}  // namespace excel
