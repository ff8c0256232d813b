#pragma once

#ifdef _WIN32

#include <excel/application.hpp>
#include <excel/export.hpp>

#include <memory>
#include <string>

struct IDispatch;

namespace excel::com {

// The object model over an automation Application: a running Excel's, or any object that answers
// by Excel's member names. Every member is a late-bound call on it; the result keeps a reference to
// the object until the last object reached through it goes.
VOS_EXPORT std::shared_ptr<excel::Application> AttachApplication(IDispatch* application);

// A new instance of the automation server of the ProgID ("Excel.Application" starts an Excel;
// "VosExcelEngine.Application" the embedded engine as an automation object), attached as above. COM
// is started for the calling thread, in a single-threaded apartment, unless it runs there already.
// A ProgID that is not registered, or a server that will not start, fails with COM's code.
VOS_EXPORT std::shared_ptr<excel::Application> CreateApplication(const std::string& progId = "Excel.Application");

}  // namespace excel::com

#endif  // _WIN32
