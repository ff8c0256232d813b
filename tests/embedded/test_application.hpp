#pragma once

#include <excel/application.hpp>

#include <memory>

// A new Application with no workbook open, for the boundary's tests to drive: the engine in-process
// here, and in the Windows build the same engine again through automation, so that every test of
// the object model runs a second time over COM.
std::shared_ptr<excel::Application> TestApplication();
