#include "chart/report_chart.hpp"

#include "chart/nice_axis_scale.hpp"

namespace vos {

std::shared_ptr<excel::Axis> ReportChart::AddValueXAxisWithNiceTicks(double dataMin, double dataMax, bool requireMinGap,
                                                                     bool requireMaxGap, const std::string& axisTitle,
                                                                     const std::string& numberFormat,
                                                                     bool verticalLabels) {
    const AxisScale scale = NiceAxisScale(dataMin, dataMax, requireMinGap, requireMaxGap);
    return AddValueXAxis(axisTitle, scale.minimum, scale.maximum, scale.unit, numberFormat, verticalLabels);
}

std::shared_ptr<excel::Axis> ReportChart::AddValueYAxisWithNiceTicks(double dataMin, double dataMax, bool requireMinGap,
                                                                     bool requireMaxGap, const std::string& axisTitle,
                                                                     const std::string& numberFormat) {
    const AxisScale scale = NiceAxisScale(dataMin, dataMax, requireMinGap, requireMaxGap);
    return AddValueYAxis(axisTitle, scale.minimum, scale.maximum, scale.unit, numberFormat);
}

std::shared_ptr<excel::Axis> ReportChart::AddSecondaryValueYAxisWithNiceTicks(double dataMin, double dataMax,
                                                                              bool requireMinGap, bool requireMaxGap,
                                                                              const std::string& axisTitle,
                                                                              const std::string& numberFormat) {
    const AxisScale scale = NiceAxisScale(dataMin, dataMax, requireMinGap, requireMaxGap);
    return AddSecondaryValueYAxis(axisTitle, scale.minimum, scale.maximum, scale.unit, numberFormat);
}

}  // namespace vos
