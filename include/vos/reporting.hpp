#pragma once

// Everything a client of the report library needs, with the Excel object model it writes through.

#include <excel/excel.hpp>

#include <vos/chart_type.hpp>
#include <vos/column_series_format.hpp>
#include <vos/divider_type.hpp>
#include <vos/error_code.hpp>
#include <vos/table_header_type.hpp>
#include <vos/table_inside_border_type.hpp>
#include <vos/theme_property_type.hpp>
#include <vos/vos_excel_chart.hpp>
#include <vos/vos_excel_report_workbook.hpp>
#include <vos/vos_excel_report_worksheet.hpp>
#include <vos/vos_excel_reporting.hpp>
#include <vos/vos_excel_table.hpp>
