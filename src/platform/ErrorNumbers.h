#pragma once

#include <QString>

namespace renvale::platform {

// The program reports file failures by number. Three numbers are told apart
// in its messages; every other errno is carried as kErrnoBase + errno, so the
// system's own description can always be recovered.
//
//   errno                          number
//   0                              0   kNoError
//   EACCES, EPERM                  70  kAccessViolation
//   EROFS, ETXTBSY, EBUSY          75  kPathFileAccess
//   ENOTDIR                        76  kPathNotFound (a folder on the path is not one)
//   ENOENT, context Folder         76  kPathNotFound
//   ENOENT, context File           53  kFileNotFound
//   EEXIST                         58  kFileAlreadyExists
//   any other e                    1000 + e, e.g. ENOSPC (28) -> 1028
//
// Opening a named pipe, a socket or a device to read its contents gives
// kNoContents (ENODEV): such an entry has no metadata, like a file without.
inline constexpr int kNoError = 0;
inline constexpr int kFileNotFound = 53;       // ENOENT on a file
inline constexpr int kFileAlreadyExists = 58;  // EEXIST: a no-replace rename or copy refused
inline constexpr int kAccessViolation = 70;    // EACCES, EPERM
inline constexpr int kPathFileAccess = 75;     // EROFS, ETXTBSY, EBUSY
inline constexpr int kPathNotFound = 76;       // ENOENT, ENOTDIR on a folder
inline constexpr int kErrnoBase = 1000;        // any other errno e is 1000 + e
inline constexpr int kNoContents = kErrnoBase + 19;  // ENODEV: not a regular file

enum class ErrnoContext { File, Folder };

int ErrorNumberFromErrno(int errnum, ErrnoContext context = ErrnoContext::File);

// The system's own text for an error number (strerror of the errno behind it:
// 53 and 76 ENOENT, 58 EEXIST, 70 EACCES, 75 EROFS, 1000 + e e). A number that
// no errno maps to gives an empty text.
QString ErrorDescription(int errorNumber);

}  // namespace renvale::platform
