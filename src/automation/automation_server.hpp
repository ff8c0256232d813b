#pragma once

#ifdef _WIN32

namespace automation {

// The server's objects clients hold, so the server knows when it may be unloaded.
void ObjectMade();
void ObjectGone();

}  // namespace automation

#endif  // _WIN32
