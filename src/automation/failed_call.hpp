#pragma once

#ifdef _WIN32

#include <windows.h>

namespace automation {

// The HRESULT of a member that failed with the exception being handled, with the error's code and
// text set as the thread's error information for the interface, so that automation clients read
// them (VBScript as Err.Number and Err.Description). The library's errors and Excel's pass with
// their own code and text; anything else is an automation error with its message.
HRESULT FailedCall(REFIID interfaceId);

}  // namespace automation

#endif  // _WIN32
