#pragma once

#ifdef _WIN32

#include <excel/application.hpp>
#include <excel/export.hpp>

#include <memory>

struct IDispatch;

namespace excel::com {

// The object model over an automation Application: a running Excel's, or any object that answers
// by Excel's member names. Every member is a late-bound call on it; the result keeps a reference to
// the object until the last object reached through it goes.
VOS_EXPORT std::shared_ptr<excel::Application> AttachApplication(IDispatch* application);

}  // namespace excel::com

#endif  // _WIN32
