#pragma once

#include <excel/fwd.hpp>
#include <excel/object.hpp>

#include <cstdint>
#include <memory>

namespace excel {

// The series of a chart drawn one way on one pair of axes.
class ChartGroup : public Object {
public:
    virtual int32_t AxisGroup() = 0;  // an XlAxisGroup
    // The space between clusters of bars, in percent of a bar's width: 0..500.
    virtual int32_t GapWidth() = 0;
    virtual void SetGapWidth(int32_t percent) = 0;
    // How far the bars of a cluster overlap, in percent of a bar's width: -100..100.
    virtual int32_t Overlap() = 0;
    virtual void SetOverlap(int32_t percent) = 0;
    virtual std::shared_ptr<excel::SeriesCollection> SeriesCollection() = 0;
};

}  // namespace excel
