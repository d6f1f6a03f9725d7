#include "platform/ErrorNumbers.h"

#include <cerrno>
#include <cstring>

namespace renvale::platform {

namespace {

// The errno each told-apart number stands for when its text is wanted.
struct NumberToErrno {
  int number;
  int errnum;
};

constexpr NumberToErrno kDescriptionSource[] = {
    {kFileNotFound, ENOENT},    {kFileAlreadyExists, EEXIST}, {kAccessViolation, EACCES},
    {kPathFileAccess, EROFS},   {kPathNotFound, ENOENT},
};

QString SystemText(int errnum) {
  char buffer[256];
  // The GNU strerror_r returns the text, which may or may not live in buffer.
  return QString::fromLocal8Bit(strerror_r(errnum, buffer, sizeof buffer));
}

}  // namespace

int ErrorNumberFromErrno(int errnum, ErrnoContext context) {
  switch (errnum) {
    case 0:
      return kNoError;
    case EACCES:
    case EPERM:
      return kAccessViolation;
    case EROFS:
    case ETXTBSY:
    case EBUSY:
      return kPathFileAccess;
    case EEXIST:
      return kFileAlreadyExists;
    case ENOTDIR:
      return kPathNotFound;
    case ENOENT:
      return context == ErrnoContext::Folder ? kPathNotFound : kFileNotFound;
    default:
      return kErrnoBase + errnum;
  }
}

QString ErrorDescription(int errorNumber) {
  if (errorNumber == kNoError) return SystemText(0);
  if (errorNumber > kErrnoBase) return SystemText(errorNumber - kErrnoBase);
  for (const NumberToErrno& entry : kDescriptionSource) {
    if (entry.number == errorNumber) return SystemText(entry.errnum);
  }
  return QString();
}

}  // namespace renvale::platform
