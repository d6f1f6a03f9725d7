#pragma once

#include <QByteArray>

namespace renvale::platform {

// Moves a file or folder to the freedesktop.org trash through GIO, which
// writes a properly escaped .trashinfo and uses the trash folder of a
// removable medium when the file lives on one. Returns an error number
// from ErrorNumbers.h.
int MoveFileToTrash(const QByteArray& path);

}  // namespace renvale::platform
