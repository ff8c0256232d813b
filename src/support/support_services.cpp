#include "support/support_services.hpp"

#include <memory>

namespace vos {

namespace {

thread_local std::unique_ptr<SupportServices> threadInstance;

}  // namespace

SupportServices& SupportServices::Instance() {
    if (!threadInstance)
        threadInstance.reset(new SupportServices());
    return *threadInstance;
}

bool SupportServices::InstanceExists() {
    return threadInstance != nullptr;
}

}  // namespace vos
