// The boundary's tests over automation: each test's Application is a new instance of the engine's
// automation object (registered by the test's runner), driven through the object model over IDispatch.

#include "embedded/test_application.hpp"

#include <excel/com.hpp>

std::shared_ptr<excel::Application> TestApplication() {
    return excel::com::CreateApplication("VosExcelEngine.Application");
}
