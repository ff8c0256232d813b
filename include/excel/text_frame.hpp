#pragma once

#include <excel/fwd.hpp>
#include <excel/object.hpp>
#include <excel/variant.hpp>

#include <memory>

namespace excel {

// The text of a shape with its margins, alignment and sizing. Its characters are formatted run
// by run through Characters(start, length).Font, as a cell's are; a line feed starts a new
// paragraph.
class TextFrame : public Object {
public:
    // The characters start..start+length-1 (1-based); no arguments: the whole text.
    virtual std::shared_ptr<excel::Characters> Characters(const Variant& start = {}, const Variant& length = {}) = 0;

    virtual bool AutoMargins() = 0;
    virtual void SetAutoMargins(bool automatic) = 0;
    // Margins in points; setting one switches AutoMargins off.
    virtual double MarginLeft() = 0;
    virtual void SetMarginLeft(double points) = 0;
    virtual double MarginRight() = 0;
    virtual void SetMarginRight(double points) = 0;
    virtual double MarginTop() = 0;
    virtual void SetMarginTop(double points) = 0;
    virtual double MarginBottom() = 0;
    virtual void SetMarginBottom(double points) = 0;

    // Sizing the shape to its text: switching it on resizes the shape at once; the shape grows or
    // shrinks again as its text changes.
    virtual bool AutoSize() = 0;
    virtual void SetAutoSize(bool autoSize) = 0;

    virtual int32_t HorizontalAlignment() = 0;  // an XlHAlign
    virtual void SetHorizontalAlignment(int32_t alignment) = 0;
    virtual int32_t VerticalAlignment() = 0;    // an XlVAlign
    virtual void SetVerticalAlignment(int32_t alignment) = 0;
};

}  // namespace excel
