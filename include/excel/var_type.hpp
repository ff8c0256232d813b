#pragma once

#include <cstdint>

namespace excel {

// The automation variant types, numbered as VBA's VarType() reports them.
enum class VarType : uint16_t {
    Empty = 0,
    Null = 1,
    Integer = 2,   // 16-bit signed
    Long = 3,      // 32-bit signed
    Single = 4,
    Double = 5,
    Currency = 6,
    Date = 7,
    String = 8,
    Object = 9,
    Error = 10,
    Boolean = 11,
    Variant = 12,  // only as an array element type
    Byte = 17,
    Array = 0x2000,  // or-ed with the element type for an array, as VarType() reports it
};

}  // namespace excel
