#pragma once

// The whole Excel object model boundary.
#include <excel/application.hpp>
#include <excel/areas.hpp>
#include <excel/automation_error.hpp>
#include <excel/border.hpp>
#include <excel/borders.hpp>
#include <excel/characters.hpp>
#include <excel/constants.hpp>
#include <excel/font.hpp>
#include <excel/interior.hpp>
#include <excel/name.hpp>
#include <excel/names.hpp>
#include <excel/page_setup.hpp>
#include <excel/range.hpp>
#include <excel/safe_array.hpp>
#include <excel/sheets.hpp>
#include <excel/variant.hpp>
#include <excel/window.hpp>
#include <excel/windows.hpp>
#include <excel/workbook.hpp>
#include <excel/workbooks.hpp>
#include <excel/worksheet.hpp>
