#include "TestEnvironment.h"

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>

namespace renvale::test {

namespace {
std::string userFoldersRoot;
}  // namespace

void IsolateUserFolders() {
  char pattern[] = "/tmp/renvale-test-XXXXXX";
  const char* root = mkdtemp(pattern);
  if (root == nullptr) {
    std::perror("mkdtemp");
    std::abort();
  }
  const std::string base(root);
  userFoldersRoot = base;
  std::atexit([] {
    std::error_code ignored;
    std::filesystem::remove_all(userFoldersRoot, ignored);
  });
  setenv("HOME", base.c_str(), 1);
  setenv("XDG_CONFIG_HOME", (base + "/config").c_str(), 1);
  setenv("XDG_DATA_HOME", (base + "/data").c_str(), 1);
  setenv("XDG_CACHE_HOME", (base + "/cache").c_str(), 1);
  setenv("XDG_STATE_HOME", (base + "/state").c_str(), 1);
  setenv("XDG_RUNTIME_DIR", base.c_str(), 1);
  // System-wide settings files must not leak into a test's defaults.
  setenv("XDG_CONFIG_DIRS", (base + "/no-system-config").c_str(), 1);
  setenv("XDG_DATA_DIRS", (base + "/no-system-data").c_str(), 1);
  if (std::getenv("QT_QPA_PLATFORM") == nullptr) setenv("QT_QPA_PLATFORM", "offscreen", 1);
}

}  // namespace renvale::test
