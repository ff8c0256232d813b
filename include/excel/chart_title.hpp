#pragma once

#include <excel/fwd.hpp>
#include <excel/object.hpp>

#include <cstdint>
#include <memory>
#include <string>

namespace excel {

// The title of a chart: a text whose characters may each have their own font. A line feed in the text
// breaks the line. Geometry in points from the chart area's top-left corner.
class ChartTitle : public Object {
public:
    virtual std::string Text() = 0;
    virtual void SetText(const std::string& text) = 0;
    virtual std::string Caption() = 0;
    virtual void SetCaption(const std::string& text) = 0;
    // The characters from start (1-based) on, length of them; -1 for all up to the end.
    virtual std::shared_ptr<excel::Characters> Characters(int32_t start = 1, int32_t length = -1) = 0;
    // The font of the whole text.
    virtual std::shared_ptr<excel::Font> Font() = 0;
    virtual bool AutoScaleFont() = 0;
    virtual void SetAutoScaleFont(bool automatic) = 0;
    // An XlOrientation, or degrees from -90 to 90.
    virtual int32_t Orientation() = 0;
    virtual void SetOrientation(int32_t orientation) = 0;
    virtual double Left() = 0;
    virtual void SetLeft(double points) = 0;
    virtual double Top() = 0;
    virtual void SetTop(double points) = 0;
    virtual double Width() = 0;
    virtual double Height() = 0;
    virtual std::shared_ptr<excel::Border> Border() = 0;
    virtual std::shared_ptr<excel::Interior> Interior() = 0;
    virtual void Delete() = 0;
};

}  // namespace excel
