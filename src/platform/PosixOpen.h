#pragma once

#include <sys/stat.h>

#include <QByteArray>
#include <memory>

#include "platform/FileSystem.h"
#include "platform/UniqueFd.h"

namespace renvale::platform {

// Opens `path` (relative to the folder `dirFd`, or AT_FDCWD) for reading its
// contents; only a regular file is left open. `st` gets the file's status as
// found at the opening. Returns an error number.
int OpenRegularFileAt(int dirFd, const QByteArray& path, UniqueFd* fd, struct stat* st);

// The same as a ReadableFile that knows its identity.
int OpenReadableFileAt(int dirFd, const QByteArray& path, std::unique_ptr<ReadableFile>* file);

// The same without asking the file's status. A pipe, a socket or a
// terminal cannot be read at an offset, so its first read fails with
// ENODEV, and a folder's with EISDIR. A device reads on without end, so a
// reader that read a full head asks its size, and that fails with ENODEV
// too; readers take ENODEV as kNoContents.
int OpenContentsAt(int dirFd, const QByteArray& path, std::unique_ptr<ReadableFile>* file);

// What StatIdentity tells of a file.
void FillIdentity(const struct stat& st, FileInfo* info);

}  // namespace renvale::platform
