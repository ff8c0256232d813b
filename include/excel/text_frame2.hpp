#pragma once

#include <excel/fwd.hpp>
#include <excel/object.hpp>

#include <cstdint>

namespace excel {

// The Office text model of a shape (TextFrame2); the engine offers the members reports use.
class TextFrame2 : public Object {
public:
    virtual int32_t WordWrap() = 0;  // an MsoTriState
    virtual void SetWordWrap(int32_t wrap) = 0;
};

}  // namespace excel
