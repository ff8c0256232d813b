#pragma once

#include <excel/fwd.hpp>
#include <excel/object.hpp>

#include <cstdint>
#include <memory>

namespace excel {

// The legend of a chart: an entry for each series. Geometry in points from the chart area's
// top-left corner.
class Legend : public Object {
public:
    virtual int32_t Position() = 0;  // an XlLegendPosition
    virtual void SetPosition(int32_t position) = 0;
    virtual std::shared_ptr<excel::Font> Font() = 0;
    virtual bool AutoScaleFont() = 0;
    virtual void SetAutoScaleFont(bool automatic) = 0;
    virtual std::shared_ptr<excel::Border> Border() = 0;
    virtual std::shared_ptr<excel::Interior> Interior() = 0;
    virtual bool IncludeInLayout() = 0;
    virtual void SetIncludeInLayout(bool include) = 0;
    virtual double Left() = 0;
    virtual double Top() = 0;
    virtual double Width() = 0;
    virtual double Height() = 0;
    virtual void Delete() = 0;
};

}  // namespace excel
