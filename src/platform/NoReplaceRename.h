#pragma once

#include <QByteArray>

namespace renvale::platform {

// Renames `from` to `to` and never replaces another file. The kernel's
// RENAME_NOREPLACE is used where the file system supports it; elsewhere a
// hard link (which refuses an existing name) and, failing that, a check just
// before a plain rename. When `to` names the very same file through a
// letter-case alias (photo.jpg -> Photo.jpg on a FAT memory card), the case
// change is carried out. Returns an error number from ErrorNumbers.h.
int RenameWithoutReplacing(const QByteArray& from, const QByteArray& to);

// The same for two names of the folder held by `folderFd`, whose path is
// `folder`. A batch's renames walk the two names alone; what the kernel's
// no-replace rename cannot settle by itself (a taken name, a letter-case
// alias, a file system without it, an error to explain) goes the way of
// the paths.
int RenameWithoutReplacingIn(int folderFd, const QByteArray& folder, const QByteArray& from, const QByteArray& to);

// Moves `from` to a fresh hidden name in its own folder, then to `to`; puts
// it back under `from` when the second step fails. This is how a file gets a
// name that the file system considers equal to its present one.
int RenameThroughTemporaryName(const QByteArray& from, const QByteArray& to);

// True when `to` reaches the same file as `from` although no entry of `to`'s
// folder is spelled exactly like `to`: the file system folds letter case.
// Hard links to one file have their own entries and are not aliases.
bool IsLetterCaseAlias(const QByteArray& from, const QByteArray& to);

// The ways of refusing to replace, best first. A rename takes the best one
// its file system supports. Forcing a later one runs, on any disk, the path
// that network shares through FUSE or CIFS (hard link) and FAT (check first)
// take for every rename.
enum class NoReplaceMethod { Kernel, HardLink, CheckFirst };
void ForceNoReplaceMethod(NoReplaceMethod best);

}  // namespace renvale::platform
