#pragma once

#include <excel/fwd.hpp>
#include <excel/object.hpp>
#include <excel/variant.hpp>

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace excel {

class Application : public Object {
public:
    virtual std::shared_ptr<excel::Workbooks> Workbooks() = 0;
    virtual std::shared_ptr<excel::Workbook> Workbooks(const Variant& index) = 0;
    virtual std::shared_ptr<excel::Workbook> ActiveWorkbook() = 0;
    virtual std::shared_ptr<excel::Worksheet> ActiveSheet() = 0;
    virtual std::shared_ptr<excel::Window> ActiveWindow() = 0;

    virtual int32_t SheetsInNewWorkbook() = 0;
    virtual void SetSheetsInNewWorkbook(int32_t count) = 0;  // 1..255, else refused
    virtual std::string UserName() = 0;
    virtual void SetUserName(const std::string& name) = 0;
    virtual bool DisplayAlerts() = 0;
    virtual void SetDisplayAlerts(bool display) = 0;
    virtual std::string Version() = 0;  // "16.0"

    // The union of two or more ranges of one worksheet, as one multi-area range.
    virtual std::shared_ptr<excel::Range> Union(const std::shared_ptr<excel::Range>& arg1, const std::shared_ptr<excel::Range>& arg2,
                                         const std::vector<std::shared_ptr<excel::Range>>& more = {}) = 0;
};

}  // namespace excel
