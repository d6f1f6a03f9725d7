#pragma once

#include <QByteArray>

#include "platform/FileSystem.h"

namespace renvale::fileops {

// Whether `folder` refuses to be written, found by writing a small probe
// file into it and deleting it again. Any failure at all (a read-only
// mount, a folder this user cannot write, a symlink or a folder planted
// under the probe's name) reads as protected; nothing is thrown.
bool IsWriteProtected(platform::FileSystem& fs, const QByteArray& folder);

}  // namespace renvale::fileops
