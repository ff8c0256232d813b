// The boundary's tests over automation: each test's Application is a new instance of the engine's
// automation object, driven through the object model over IDispatch.

#include "embedded/test_application.hpp"
#include "engine_automation_object.hpp"

std::shared_ptr<excel::Application> TestApplication() {
    return EngineThroughAutomation();
}
