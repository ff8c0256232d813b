#include "embedded/test_application.hpp"

#include <excel/embedded.hpp>

std::shared_ptr<excel::Application> TestApplication() {
    return excel::embedded::CreateApplication();
}
