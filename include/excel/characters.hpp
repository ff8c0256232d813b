#pragma once

#include <excel/fwd.hpp>
#include <excel/object.hpp>

#include <cstdint>
#include <memory>
#include <string>

namespace excel {

// A run of characters of a cell's text; its font formats just those characters (rich text).
// Positions count characters, not bytes of the UTF-8 text.
class Characters : public Object {
public:
    virtual std::string Text() = 0;
    virtual void SetText(const std::string& text) = 0;
    virtual std::string Caption() = 0;
    virtual void SetCaption(const std::string& text) = 0;
    virtual int32_t Count() = 0;
    virtual std::shared_ptr<excel::Font> Font() = 0;
    // Replaces these characters with the text.
    virtual void Insert(const std::string& text) = 0;
    virtual void Delete() = 0;
};

}  // namespace excel
