#pragma once

#include <cstddef>

namespace renvale::platform {

// Makes room for about `bytes` of this thread's allocations up front, in
// memory the system maps in one go: a short-lived process that will
// allocate that much over thousands of files then does not stop at every
// new page for the system to map it (each such stop is costly, most of all
// in a virtual machine). From then on the process hands no freed memory
// back to the system before it ends, so the room made stays. Does nothing
// where the system cannot map memory ahead.
void ReserveHeap(std::size_t bytes);

}  // namespace renvale::platform
