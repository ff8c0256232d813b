#pragma once

#ifdef _WIN32

#include <excel/automation_error.hpp>
#include <excel/com.hpp>

#include <windows.h>
// windows.h first: the OLE headers build on its types.
#include <objbase.h>
#include <oleauto.h>

#include <memory>
#include <stdexcept>

// A new instance of the engine's automation object (VosExcelEngine.Application, which the program's
// runner registers), as the object model over automation: every call on it or on an object reached
// through it is an IDispatch::Invoke. COM is started for the calling thread on first use.
inline std::shared_ptr<excel::Application> EngineThroughAutomation() {
    static const HRESULT started = CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
    if (FAILED(started)) {
        throw std::runtime_error("COM could not start");
    }
    CLSID engine{};
    if (FAILED(CLSIDFromProgID(L"VosExcelEngine.Application", &engine))) {
        throw std::runtime_error("VosExcelEngine.Application is not registered");
    }
    IDispatch* application = nullptr;
    const HRESULT made =
        CoCreateInstance(engine, nullptr, CLSCTX_INPROC_SERVER, IID_IDispatch, reinterpret_cast<void**>(&application));
    if (FAILED(made)) {
        throw excel::AutomationError(static_cast<int32_t>(made), "VosExcelEngine.Application could not be made");
    }
    auto attached = excel::com::AttachApplication(application);
    application->Release();
    return attached;
}

#endif  // _WIN32
