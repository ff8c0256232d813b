#pragma once

#include <excel/fwd.hpp>
#include <excel/object.hpp>
#include <excel/variant.hpp>

#include <cstdint>
#include <memory>

namespace excel {

// An axis of a chart. Its Crosses and CrossesAt say where the other axis of its group crosses it.
class Axis : public Object {
public:
    virtual int32_t Type() = 0;       // an XlAxisType
    virtual int32_t AxisGroup() = 0;  // an XlAxisGroup

    virtual bool HasTitle() = 0;
    virtual void SetHasTitle(bool has) = 0;
    virtual std::shared_ptr<excel::AxisTitle> AxisTitle() = 0;  // refused while HasTitle is false
    virtual bool HasMajorGridlines() = 0;
    virtual void SetHasMajorGridlines(bool has) = 0;
    virtual bool HasMinorGridlines() = 0;
    virtual void SetHasMinorGridlines(bool has) = 0;
    virtual int32_t MajorTickMark() = 0;  // an XlTickMark
    virtual void SetMajorTickMark(int32_t mark) = 0;
    virtual int32_t MinorTickMark() = 0;
    virtual void SetMinorTickMark(int32_t mark) = 0;

    // The scale of a value axis. Setting a value makes it fixed; setting its ...IsAuto back to true
    // lets Excel choose it again.
    virtual double MinimumScale() = 0;
    virtual void SetMinimumScale(double value) = 0;
    virtual bool MinimumScaleIsAuto() = 0;
    virtual void SetMinimumScaleIsAuto(bool automatic) = 0;
    virtual double MaximumScale() = 0;
    virtual void SetMaximumScale(double value) = 0;
    virtual bool MaximumScaleIsAuto() = 0;
    virtual void SetMaximumScaleIsAuto(bool automatic) = 0;
    virtual double MajorUnit() = 0;
    virtual void SetMajorUnit(double value) = 0;
    virtual bool MajorUnitIsAuto() = 0;
    virtual void SetMajorUnitIsAuto(bool automatic) = 0;
    virtual double MinorUnit() = 0;
    virtual void SetMinorUnit(double value) = 0;
    virtual bool MinorUnitIsAuto() = 0;
    virtual void SetMinorUnitIsAuto(bool automatic) = 0;
    virtual int32_t ScaleType() = 0;  // an XlScaleType
    virtual void SetScaleType(int32_t type) = 0;

    virtual int32_t Crosses() = 0;  // an XlAxisCrosses
    virtual void SetCrosses(int32_t crosses) = 0;
    virtual double CrossesAt() = 0;
    // Sets Crosses to xlAxisCrossesCustom.
    virtual void SetCrossesAt(double value) = 0;
    virtual bool ReversePlotOrder() = 0;
    virtual void SetReversePlotOrder(bool reverse) = 0;

    // The category axis' names: a 1-based array of the texts; set from a range or an array.
    virtual Variant CategoryNames() = 0;
    virtual void SetCategoryNames(const Variant& names) = 0;
    virtual int32_t TickLabelPosition() = 0;  // an XlTickLabelPosition
    virtual void SetTickLabelPosition(int32_t position) = 0;
    virtual std::shared_ptr<excel::TickLabels> TickLabels() = 0;

    // In points from the chart area's top-left corner, labels and title included.
    virtual double Left() = 0;
    virtual double Top() = 0;
    virtual double Width() = 0;
    virtual double Height() = 0;

    virtual std::shared_ptr<excel::Border> Border() = 0;
    // Hides the axis, as HasAxis = false does.
    virtual void Delete() = 0;
};

}  // namespace excel
