#pragma once

#include <QString>

namespace renvale::platform {

// The program reports file failures by number. Three numbers are told apart
// in its messages; every other errno is carried as kErrnoBase + errno, so the
// system's own description can always be recovered.
inline constexpr int kNoError = 0;
inline constexpr int kFileNotFound = 53;       // ENOENT on a file
inline constexpr int kFileAlreadyExists = 58;  // EEXIST: a no-replace rename or copy refused
inline constexpr int kAccessViolation = 70;    // EACCES, EPERM
inline constexpr int kPathFileAccess = 75;     // EROFS, ETXTBSY, EBUSY
inline constexpr int kPathNotFound = 76;       // ENOENT, ENOTDIR on a folder
inline constexpr int kErrnoBase = 1000;        // any other errno e is 1000 + e

enum class ErrnoContext { File, Folder };

int ErrorNumberFromErrno(int errnum, ErrnoContext context = ErrnoContext::File);

// The system's own text for an error number (strerror of the errno behind it).
QString ErrorDescription(int errorNumber);

}  // namespace renvale::platform
