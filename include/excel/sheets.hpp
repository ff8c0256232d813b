#pragma once

#include <excel/fwd.hpp>
#include <excel/object.hpp>
#include <excel/variant.hpp>

#include <cstdint>
#include <memory>

namespace excel {

// The sheets of a workbook (Workbook.Sheets and Workbook.Worksheets).
class Sheets : public Object {
public:
    virtual std::shared_ptr<excel::Application> Application() = 0;
    virtual std::shared_ptr<excel::Workbook> Parent() = 0;
    virtual int32_t Count() = 0;
    // By 1-based position or by sheet name (case-insensitive).
    virtual std::shared_ptr<excel::Worksheet> Item(const Variant& index) = 0;
    // Adds count new worksheets before or after the given sheet (default: before the active
    // sheet); the new sheets are named SheetN, the last one added becomes active and is returned.
    virtual std::shared_ptr<excel::Worksheet> Add(const Variant& before = {}, const Variant& after = {},
                                           const Variant& count = {}) = 0;
};

}  // namespace excel
