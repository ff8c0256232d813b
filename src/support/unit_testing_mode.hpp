#pragma once

namespace vos {

// The calling thread's unit-testing flag, off until switched on. It is library state, not
// object state: switching it through any entry object affects everything built afterwards on
// the thread, and nothing on other threads.
bool IsUnitTestingModeOn();
void SwitchUnitTestingMode(bool on);

}  // namespace vos
