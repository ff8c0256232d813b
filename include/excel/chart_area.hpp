#pragma once

#include <excel/fwd.hpp>
#include <excel/object.hpp>

#include <memory>

namespace excel {

// The area of a chart that holds everything else: its geometry is the chart's, in points.
class ChartArea : public Object {
public:
    virtual double Left() = 0;
    virtual double Top() = 0;
    virtual double Width() = 0;
    virtual double Height() = 0;
    virtual std::shared_ptr<excel::Border> Border() = 0;
    virtual std::shared_ptr<excel::Interior> Interior() = 0;
    virtual std::shared_ptr<excel::Font> Font() = 0;
    // Back to the automatic format: no border, fill or font of its own.
    virtual void ClearFormats() = 0;
};

}  // namespace excel
