#ifdef _WIN32

#include "excel/com/wide_text.hpp"

#include <excel/automation_error.hpp>
#include <excel/com.hpp>

#include <windows.h>
// windows.h first: the OLE headers build on its types.
#include <objbase.h>

namespace excel::com {

namespace {

// COM for this thread, in the apartment automation servers such as Excel expect. A thread that
// runs COM already (in either apartment) keeps it as it is.
void StartCom() {
    const HRESULT started = CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
    if (FAILED(started) && started != RPC_E_CHANGED_MODE) {
        throw AutomationError(static_cast<int32_t>(started), "Automation error");
    }
}

}  // namespace

std::shared_ptr<excel::Application> CreateApplication(const std::string& progId) {
    StartCom();
    CLSID server{};
    const HRESULT found = CLSIDFromProgID(WideFromUtf8(progId).c_str(), &server);
    if (FAILED(found)) {
        throw AutomationError(static_cast<int32_t>(found), "ActiveX component can't create object");
    }
    IDispatch* application = nullptr;
    const HRESULT made =
        CoCreateInstance(server, nullptr, CLSCTX_SERVER, IID_IDispatch, reinterpret_cast<void**>(&application));
    if (FAILED(made)) {
        throw AutomationError(static_cast<int32_t>(made), "ActiveX component can't create object");
    }
    auto attached = AttachApplication(application);
    application->Release();
    return attached;
}

}  // namespace excel::com

#endif  // _WIN32
