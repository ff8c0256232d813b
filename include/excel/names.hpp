#pragma once

#include <excel/fwd.hpp>
#include <excel/object.hpp>
#include <excel/variant.hpp>

#include <cstdint>
#include <memory>
#include <string>

namespace excel {

// Defined names. Workbook.Names holds every name; a name written "Sheet1!Total" (or added through
// Worksheet.Names) is local to that sheet.
class Names : public Object {
public:
    virtual int32_t Count() = 0;
    // By 1-based position or by name ("Total", or "Sheet1!Total" for a local one).
    virtual std::shared_ptr<excel::Name> Item(const Variant& index) = 0;
    // refersTo is a formula ("=Sheet1!$A$1", "=\"text\"", "=42") or a Range. Adding a name that
    // exists in the same scope replaces its formula. Refused for a name Excel would not accept.
    virtual std::shared_ptr<excel::Name> Add(const std::string& name, const Variant& refersTo, bool visible = true) = 0;
};

}  // namespace excel
