#pragma once

#include <QByteArray>

namespace renvale::platform {

// Moves a file or folder to the freedesktop.org trash through GIO, which
// writes a properly escaped .trashinfo and uses the trash folder of a
// removable medium when the file lives on one. Returns an error number
// from ErrorNumbers.h.
int MoveFileToTrash(const QByteArray& path);

}  // namespace renvale::platform

namespace renvale::platform {

// Puts back the newest file of `size` bytes that the trash holds from
// `originalPath` (the home trash, or the trash at the top of the medium the
// path lies on), never replacing a file there. Returns an error number:
// kFileNotFound when the trash holds no such file.
int RestoreFromTrash(const QByteArray& originalPath, qint64 size);

}  // namespace renvale::platform
