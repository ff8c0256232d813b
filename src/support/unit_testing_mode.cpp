#include "support/unit_testing_mode.hpp"

namespace vos {

namespace {

thread_local bool unitTestingModeOn = false;

}  // namespace

bool IsUnitTestingModeOn() {
    return unitTestingModeOn;
}

void SwitchUnitTestingMode(bool on) {
    unitTestingModeOn = on;
}

}  // namespace vos
