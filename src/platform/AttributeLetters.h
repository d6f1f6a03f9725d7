#pragma once

#include <QByteArray>
#include <QString>

#include "platform/FileSystem.h"

namespace renvale::platform {

// The attribute string of the information views, letters in the order
// D A S H R: "D" folder, "H" hidden (name starts with "."), "R" not writable
// by this user. Linux keeps no archive or system bit, so "A" and "S" never
// appear.
QString AttributeLettersOf(const FileInfo& info);

// The letters for `path`, or "" when nothing exists there (also when it
// cannot be examined). Callers test for a folder by looking for "D".
QString AttributeLetters(FileSystem& fileSystem, const QByteArray& path);

}  // namespace renvale::platform
