#pragma once

#include <excel/fwd.hpp>
#include <excel/object.hpp>
#include <excel/variant.hpp>

#include <cstdint>
#include <memory>
#include <string>

namespace excel {

class Name : public Object {
public:
    // "Total", or "Sheet1!Total" for a name local to Sheet1 (quoted where the sheet name needs it).
    virtual std::string GetName() = 0;
    virtual void SetName(const std::string& name) = 0;
    virtual std::string RefersTo() = 0;
    virtual void SetRefersTo(const Variant& refersTo) = 0;
    virtual std::string Value() = 0;
    virtual std::shared_ptr<excel::Range> RefersToRange() = 0;  // refused when not a reference
    virtual bool Visible() = 0;
    virtual void SetVisible(bool visible) = 0;
    virtual int32_t Index() = 0;
    virtual void Delete() = 0;
};

}  // namespace excel
