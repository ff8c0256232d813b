#pragma once

#include <excel/fwd.hpp>
#include <excel/object.hpp>
#include <excel/variant.hpp>

#include <cstdint>
#include <memory>

namespace excel {

// The sheets of a workbook: Workbook.Sheets lists every sheet, chart sheets and other sheets that
// are not worksheets included, Workbook.Worksheets the worksheets alone.
class Sheets : public Object {
public:
    virtual std::shared_ptr<excel::Application> Application() = 0;
    virtual std::shared_ptr<excel::Workbook> Parent() = 0;
    virtual int32_t Count() = 0;
    // By 1-based position or by sheet name (case-insensitive). A sheet of Sheets that is not a
    // worksheet raises Type mismatch (0x800A000D).
    virtual std::shared_ptr<excel::Worksheet> Item(const Variant& index) = 0;
    // Adds count new worksheets before or after the given sheet (default: before the active
    // sheet), among all the workbook's sheets; the new sheets are named SheetN, the last one added
    // becomes active and is returned.
    virtual std::shared_ptr<excel::Worksheet> Add(const Variant& before = {}, const Variant& after = {},
                                           const Variant& count = {}) = 0;
};

}  // namespace excel
