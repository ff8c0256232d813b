#pragma once

namespace vos {

// A chart placed on a report sheet: column, XY, line or tornado series with titles, axes,
// legend and watermark. Only VosExcelReportWorksheet::AddChart hands one out.
class VosExcelChart {
public:
    virtual ~VosExcelChart() = default;

protected:
    VosExcelChart() = default;
    VosExcelChart(const VosExcelChart&) = delete;
    VosExcelChart& operator=(const VosExcelChart&) = delete;
};

}  // namespace vos
