#include "support/chart_type_check.hpp"

#include "support/library_error.hpp"

#include <vos/chart_type.hpp>

namespace vos {

void CheckChartType(int32_t chartType, const std::string& argumentName) {
    switch (chartType) {
        case VosChartCustom:
        case VosChartColumn:
        case VosChartXYMarkers:
        case VosChartXYLine:
        case VosChartXYMarkersAndLine:
        case VosChartLine:
        case VosChartLineWithMarkers:
        case VosChartTornado:
            return;
        default:
            RaiseLibraryError(error_code::OutOfRange, argumentName);
    }
}

}  // namespace vos
