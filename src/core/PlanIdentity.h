#pragma once

#include "core/OperationPlan.h"
#include "platform/FileSystem.h"

namespace renvale::core {

// The identity of the file at `path` now; size -1 when there is none.
FileIdentity IdentityOf(platform::FileSystem& fs, const QByteArray& path, bool inodeStable);
// The same for the file called `name` in a folder held open.
FileIdentity IdentityOf(platform::ReadableFolder& folder, const QByteArray& name, bool inodeStable);

// Whether `info` is the file `recorded` describes. Size and modification
// time always count; the inode only where the file system keeps it. A copy
// keeps size and time but not the inode: `sameInode` false leaves it out.
bool IsSameFile(const FileIdentity& recorded, const platform::FileInfo& info, bool sameInode = true);

// Whether the file at `path` is the one `recorded` describes.
bool HoldsFile(platform::FileSystem& fs, const QByteArray& path, const FileIdentity& recorded,
               bool sameInode = true);

}  // namespace renvale::core
