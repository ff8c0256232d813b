#pragma once

namespace vos {

// A table placed on a report sheet: title rows, top and left headers, an interior and the
// signature corner where the headers meet. Only VosExcelReportWorksheet::AddTable hands one out.
class VosExcelTable {
public:
    virtual ~VosExcelTable() = default;

protected:
    VosExcelTable() = default;
    VosExcelTable(const VosExcelTable&) = delete;
    VosExcelTable& operator=(const VosExcelTable&) = delete;
};

}  // namespace vos
