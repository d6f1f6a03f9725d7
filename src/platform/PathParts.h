#pragma once

#include <QByteArray>

namespace renvale::platform {

// The last component of a path, ignoring trailing '/' ("/a/b/" gives "b").
QByteArray BaseName(const QByteArray& path);
// The folder holding the last component, with its trailing '/'; "./" for a
// bare name ("/a/b" gives "/a/", "b" gives "./").
QByteArray ParentFolder(const QByteArray& path);

}  // namespace renvale::platform
