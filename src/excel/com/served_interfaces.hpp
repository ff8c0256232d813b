#pragma once

#ifdef _WIN32

#include <excel/automation_error.hpp>
#include <excel/object.hpp>
#include <excel/variant.hpp>

#include <windows.h>
// windows.h first: the OLE headers build on its types.
#include <oaidl.h>

#include <cstddef>
#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace excel::com {

// A call that automation itself refuses (a wrong argument count, a missing argument), answered with
// its HRESULT rather than as the object's exception.
struct DispatchFailure {
    HRESULT result;
};

// The arguments of one call on a served object, in their written order; an argument the caller left
// out (an omitted optional one) reads as missing, and the trailing ones do not count.
class CallArguments {
public:
    // The index of the value a property put assigns.
    static constexpr size_t PutValue = static_cast<size_t>(-1);

    CallArguments() = default;
    CallArguments(std::vector<std::optional<Variant>> values, std::optional<Variant> putValue);

    size_t Count() const { return values_.size(); }

    Variant Value(size_t index) const;  // empty when left out
    int32_t Int(size_t index) const;
    int32_t Int(size_t index, int32_t fallback) const;
    double Double(size_t index) const;
    bool Bool(size_t index) const;
    bool Bool(size_t index, bool fallback) const;
    std::string Text(size_t index) const;

    // An object argument of the interface a member takes; Nothing is an empty pointer.
    template <class Interface>
    std::shared_ptr<Interface> Object(size_t index) const {
        const std::shared_ptr<excel::Object> object = Required(index).ToObject();
        auto typed = std::dynamic_pointer_cast<Interface>(object);
        if (object != nullptr && typed == nullptr) {
            ThrowRuntimeError(13);  // an object of another kind: type mismatch
        }
        return typed;
    }
    // The object arguments from the first index on.
    template <class Interface>
    std::vector<std::shared_ptr<Interface>> Objects(size_t first) const {
        std::vector<std::shared_ptr<Interface>> objects;
        for (size_t index = first; index < Count(); ++index) {
            objects.push_back(Object<Interface>(index));
        }
        return objects;
    }

    // These arguments applied to the default member of what a member answered, as Excel applies
    // the arguments a member does not take itself: Cells(2, 3) is Cells.Item(2, 3). With a put's
    // value, the arguments pick the object and its default member takes the value: Cells(2, 3) = 5
    // puts the Value of Cells.Item(2, 3).
    Variant ToDefaultMember(const Variant& result) const;

private:
    const Variant& Required(size_t index) const;
    const std::optional<Variant>& At(size_t index) const;

    std::vector<std::optional<Variant>> values_;
    std::optional<Variant> putValue_;
};

// One member by its Excel name: reads and calls it (put false) or assigns it (put true).
using MemberInvoker = Variant (*)(Object& object, bool put, const CallArguments& arguments);

struct ServedMember {
    const char* name;
    MemberInvoker invoke;
};

// One interface of the object model as automation sees it: its name and GUID, its members (member
// i has dispatch id i + 1) and its default member, the one dispatch id 0 (DISPID_VALUE) calls.
class ServedInterface {
public:
    ServedInterface(const char* name, const GUID& id, std::span<const ServedMember> members, std::string_view item);

    const char* Name() const { return name_; }
    const GUID& Id() const { return id_; }
    // The dispatch id of a member, whatever the case of its name; none for a name it lacks.
    std::optional<DISPID> IdOf(std::string_view name) const;
    // The member of a dispatch id: the default is Item with arguments and Value without them, where
    // the interface has both (a range), and Item otherwise. Null for an unknown id.
    const ServedMember* Member(DISPID id, bool withArguments) const;

private:
    const char* name_;
    GUID id_;
    std::span<const ServedMember> members_;
    std::map<std::string, DISPID> ids_;
    std::optional<DISPID> item_;
    std::optional<DISPID> value_;
};

// Every interface of the object model, generated from its headers: the one of an interface type,
// and the most derived one an object implements (null for none).
template <class Interface>
const ServedInterface& ServedInterfaceOf();
const ServedInterface* ServedInterfaceOfObject(Object& object);

// The refusals of automation itself, for the generated members.
[[noreturn]] Variant WrongArgumentCount();
[[noreturn]] Variant NotAProperty();

}  // namespace excel::com

#endif  // _WIN32
