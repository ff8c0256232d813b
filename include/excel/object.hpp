#pragma once

#include <memory>

namespace excel {

// Common base of every object of the Excel object model, so that a Variant can hold any of them.
class Object {
public:
    virtual ~Object() = default;

    // The Excel object this reference stands for. Two references to one workbook, worksheet or
    // application answer the same identity even when they are distinct views, as two interface
    // pointers to one COM object compare equal through IUnknown.
    virtual const void* Identity() const { return this; }

protected:
    Object() = default;
    Object(const Object&) = default;
    Object& operator=(const Object&) = default;
};

// Whether two references name the same Excel object; two empty references are the same.
inline bool IsSameObject(const std::shared_ptr<const Object>& first, const std::shared_ptr<const Object>& second) {
    if (!first || !second) {
        return first == second;
    }
    return first->Identity() == second->Identity();
}

}  // namespace excel
