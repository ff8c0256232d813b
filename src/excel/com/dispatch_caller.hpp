#pragma once

#ifdef _WIN32

#include "excel/com/variant_conversion.hpp"

#include <excel/variant.hpp>

#include <windows.h>
// windows.h first: the OLE headers build on its types.
#include <oaidl.h>

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace excel::com {

// One argument of a late-bound call; an omitted optional argument is none.
using Argument = std::optional<Variant>;

// What an automation object's type information says it is: its interface, by which the dispatch ids
// of its members are kept, and the interface's name without Excel's leading underscore (Excel's
// worksheet is a "_Worksheet"). An object without type information has neither.
struct DispatchType {
    std::optional<GUID> interfaceId;
    std::string name;
};

DispatchType TypeOf(IDispatch* dispatch);

// Late-bound calls on an automation object by member name, made as Excel's own clients make them:
// locale 1033, the arguments in order and an omitted one as "parameter not found", a property put
// with the named argument automation requires. A member's dispatch id is looked up once for all
// objects of one interface. Failures arrive as AutomationError: the object's own code and text
// (Excel's "Unable to set ..." with 0x800A03EC), or the automation runtime's for a member the
// object lacks (438), a wrong type (13), a missing argument (449) or a wrong count (450).
class DispatchCaller {
public:
    // Takes a reference to the object, released when the caller goes.
    DispatchCaller(IDispatch* dispatch, DispatchType type, const ObjectBridge& objects);
    ~DispatchCaller();
    DispatchCaller(const DispatchCaller&) = delete;
    DispatchCaller& operator=(const DispatchCaller&) = delete;

    IDispatch* Dispatch() const { return dispatch_; }
    const DispatchType& Type() const { return type_; }

    // How many calls the callers of this thread have made of IDispatch::Invoke.
    static uint64_t InvokeCount();

    // A property's value; with arguments, a parameterised property (Cells(1, 2)).
    Variant Get(std::string_view member, std::span<const Argument> arguments = {}) const;
    // A method, and what it returns.
    Variant Call(std::string_view member, std::span<const Argument> arguments = {}) const;
    void Put(std::string_view member, const Variant& value, std::span<const Argument> arguments = {}) const;

private:
    Variant Invoke(std::string_view member, WORD flags, std::span<const Argument> arguments,
                   const Variant* value) const;

    IDispatch* dispatch_;
    DispatchType type_;
    const ObjectBridge& objects_;
};

}  // namespace excel::com

#endif  // _WIN32
