#pragma once

#include <QByteArray>

namespace renvale::platform {

// False where the file system holding `folder` gives its files new numbers
// each time it is mounted (FAT and exFAT memory cards, and shares whose
// numbers the server makes up), so that an inode recorded before a remount
// says nothing about the file after it. True where it cannot be told.
bool FileNumbersStable(const QByteArray& folder);

}  // namespace renvale::platform
