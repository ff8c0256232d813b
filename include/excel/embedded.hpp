#pragma once

#include <excel/application.hpp>
#include <excel/export.hpp>

#include <memory>

namespace excel::embedded {

// A new instance of the embedded spreadsheet engine, with no workbook open.
VOS_EXPORT std::shared_ptr<excel::Application> CreateApplication();

}  // namespace excel::embedded
