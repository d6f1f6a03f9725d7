#pragma once

namespace renvale::test {

// Points every per-user folder (settings, data, cache, home) at a fresh
// temporary folder before Qt starts, so no test can read or write the real
// user's settings. Also turns off QSettings' system-wide fallbacks. The
// folder is removed when the program exits.
void IsolateUserFolders();

}  // namespace renvale::test
