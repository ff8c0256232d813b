#pragma once

#include <excel/fwd.hpp>
#include <excel/object.hpp>
#include <excel/variant.hpp>

#include <memory>
#include <string>

namespace excel {

// A cell's comment (a note): rich text in a shape that shows beside the cell, hidden until the
// pointer rests on the cell unless made visible.
class Comment : public Object {
public:
    virtual std::shared_ptr<excel::Range> Parent() = 0;  // the cell
    virtual std::string Author() = 0;
    virtual std::shared_ptr<excel::Shape> Shape() = 0;
    virtual bool Visible() = 0;
    virtual void SetVisible(bool visible) = 0;
    // Comment.Text: answers the whole text. Given a text, replaces the whole text with it, or
    // with start (1-based) inserts it there, replacing what follows when overwrite is true.
    virtual std::string Text(const Variant& text = {}, const Variant& start = {}, const Variant& overwrite = {}) = 0;
    virtual void Delete() = 0;
};

}  // namespace excel
