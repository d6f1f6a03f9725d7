#pragma once

#include <QByteArray>

namespace renvale::platform {

// Copies a file's contents, permission bits and modification time, flushing
// the copy to disk before reporting success. Without `replace` an existing
// target gives kFileAlreadyExists and is left alone. With `replace` the copy
// is made under a temporary name beside the target and renamed over it at
// the end, so a failed copy leaves the old target intact. A failure never
// leaves a partial file behind. Returns an error number from ErrorNumbers.h.
int CopyFileKeepingTimes(const QByteArray& from, const QByteArray& to, bool replace);

// Copies with plain reads and writes as if every copy_file_range were
// refused, which is what happens across some file systems and for special
// files; lets that loop run on any disk.
void ForceReadWriteCopy(bool force);

// Hidden names of copies not yet given their final name. One left behind
// was cut short by a crash; the next transfer into its folder removes it.
inline constexpr char kTransferTemporaryPrefix[] = ".renvale-transfer-";

// Copies as above to a fresh kTransferTemporaryPrefix name in `folder`,
// returned in `temporary`, without flushing it.
int CopyToHiddenTemporary(const QByteArray& from, const QByteArray& folder, QByteArray* temporary);

}  // namespace renvale::platform
