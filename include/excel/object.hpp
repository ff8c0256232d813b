#pragma once

namespace excel {

// Common base of every object of the Excel object model, so that a Variant can hold any of them.
class Object {
public:
    virtual ~Object() = default;

protected:
    Object() = default;
    Object(const Object&) = default;
    Object& operator=(const Object&) = default;
};

}  // namespace excel
