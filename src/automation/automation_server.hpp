#pragma once

#ifdef _WIN32

#include <windows.h>

namespace automation {

// The server's own module: where its type library and label strings are, and what it registers.
HMODULE ServerModule();

// The objects and locks clients hold, so the server knows when it may be unloaded.
void ObjectMade();
void ObjectGone();
void LockServer(bool lock);
bool ServerInUse();

}  // namespace automation

#endif  // _WIN32
