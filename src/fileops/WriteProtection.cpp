#include "fileops/WriteProtection.h"

#include "platform/ErrorNumbers.h"
#include "platform/FileName.h"

namespace renvale::fileops {

namespace {

// The line in quoted-field form with CR LF, as the probe has always held it,
// so that a user who finds a leftover probe can read what it is.
const QByteArray kProbeName = QByteArrayLiteral("RV_TestFile");
const QByteArray kProbeLine = QByteArrayLiteral("\"This file tests for write protection.  You may delete it.\"\r\n");

}  // namespace

bool IsWriteProtected(platform::FileSystem& fs, const QByteArray& folder) {
  // The very name written is deleted: names differ by letter case on most
  // Linux file systems, and a differently spelled delete would leave the
  // probe behind.
  const QByteArray probe = platform::JoinPath(folder, kProbeName);
  if (fs.WriteProbeFile(probe, kProbeLine) != platform::kNoError) return true;
  return fs.RemoveFile(probe) != platform::kNoError;
}

}  // namespace renvale::fileops
