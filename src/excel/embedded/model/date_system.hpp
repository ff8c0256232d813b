#pragma once

namespace excel::embedded {

// A workbook counts its date serials in one of two systems. In the 1900 system a serial is the
// number of days since 1899-12-30 (for dates after February 1900), the same count an automation
// Date holds; in the 1904 system serial 0 is 1904-01-01, 1,462 days later. The serials a cell
// stores stay as they are when the workbook changes system, so the dates they show move.

// Days from 1899-12-30 to 1904-01-01.
inline constexpr double Date1904Offset = 1462.0;

// The automation Date a cell's serial stands for.
constexpr double DateFromSerial(double serial, bool date1904) {
    return date1904 ? serial + Date1904Offset : serial;
}

// The serial a cell stores for an automation Date.
constexpr double SerialFromDate(double date, bool date1904) {
    return date1904 ? date - Date1904Offset : date;
}

}  // namespace excel::embedded
