#pragma once

#include <excel/fwd.hpp>
#include <excel/object.hpp>

#include <cstdint>
#include <memory>
#include <string>

namespace excel {

// A drawing object floating over the cells: a text box, a chart or a comment's shape. Geometry is in
// points from the sheet's top-left corner; the shape is anchored to the cells under it, so
// inserting, deleting or resizing rows and columns moves it as its Placement says.
class Shape : public Object {
public:
    virtual std::shared_ptr<excel::Worksheet> Parent() = 0;
    virtual std::string Name() = 0;
    virtual void SetName(const std::string& name) = 0;
    virtual int32_t Type() = 0;  // an MsoShapeType: msoTextBox, msoChart, msoComment
    virtual int32_t ID() = 0;

    virtual double Left() = 0;
    virtual void SetLeft(double points) = 0;
    virtual double Top() = 0;
    virtual void SetTop(double points) = 0;
    virtual double Width() = 0;
    virtual void SetWidth(double points) = 0;
    virtual double Height() = 0;
    virtual void SetHeight(double points) = 0;
    virtual int32_t Placement() = 0;  // an XlPlacement
    virtual void SetPlacement(int32_t placement) = 0;
    virtual int32_t Visible() = 0;    // an MsoTriState
    virtual void SetVisible(int32_t visible) = 0;

    virtual std::shared_ptr<excel::FillFormat> Fill() = 0;
    virtual std::shared_ptr<excel::LineFormat> Line() = 0;
    virtual std::shared_ptr<excel::TextFrame> TextFrame() = 0;
    virtual std::shared_ptr<excel::TextFrame2> TextFrame2() = 0;
    // The chart of a chart's shape; refused for any other shape.
    virtual std::shared_ptr<excel::Chart> Chart() = 0;

    // The cells under the shape's top-left and bottom-right corners.
    virtual std::shared_ptr<excel::Range> TopLeftCell() = 0;
    virtual std::shared_ptr<excel::Range> BottomRightCell() = 0;

    // The macro run when the shape is clicked; "" for none.
    virtual std::string OnAction() = 0;
    virtual void SetOnAction(const std::string& macro) = 0;

    virtual void Delete() = 0;
};

}  // namespace excel
