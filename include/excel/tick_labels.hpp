#pragma once

#include <excel/fwd.hpp>
#include <excel/object.hpp>

#include <cstdint>
#include <memory>
#include <string>

namespace excel {

// The labels at an axis' tick marks.
class TickLabels : public Object {
public:
    virtual bool AutoScaleFont() = 0;
    virtual void SetAutoScaleFont(bool automatic) = 0;
    virtual std::shared_ptr<excel::Font> Font() = 0;
    virtual std::string NumberFormat() = 0;
    virtual void SetNumberFormat(const std::string& format) = 0;
    // The format in the user's locale; the engine's locale is English (United States).
    virtual std::string NumberFormatLocal() = 0;
    virtual void SetNumberFormatLocal(const std::string& format) = 0;
    // Whether the labels take the number format of the cells the values come from.
    virtual bool NumberFormatLinked() = 0;
    virtual void SetNumberFormatLinked(bool linked) = 0;
    // An XlTickLabelOrientation, or degrees from -90 to 90.
    virtual int32_t Orientation() = 0;
    virtual void SetOrientation(int32_t orientation) = 0;
};

}  // namespace excel
