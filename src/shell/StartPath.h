#pragma once

#include <QByteArray>

namespace renvale::platform {
class FileSystem;
}

namespace renvale::shell {

// Where a path handed to the program at start (by a file manager's
// "Open With", or typed after the command) puts the window.
struct StartPlace {
  QByteArray folder;  // with trailing '/'; empty when the path cannot be used
  QByteArray file;    // bare name to select in `folder`, or empty
};

// `path` is absolute. A folder opens as it is; a file opens its folder with
// the file selected. A path that is missing, or whose folder cannot be
// listed, gives an empty place so that the window starts as usual.
StartPlace ResolveStartPath(platform::FileSystem& fs, const QByteArray& path);

}  // namespace renvale::shell
