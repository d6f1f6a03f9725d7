#pragma once

#include <unistd.h>

#include <QByteArray>

namespace renvale::bench {

// The folder every batch benchmark renames in, and the pictures it is made
// from: distinct JPEGs one second apart, written once per run. Named after
// the process, so that two benches running at once keep out of each other's way.
inline constexpr int kPictureCount = 10000;
inline const QByteArray kRunTag = QByteArray::number(getpid());
inline const QByteArray kBatchFolder = "/tmp/renvale-bench-batch-" + kRunTag + '/';

QByteArray PictureName(int i);

// A fresh folder of the pictures for one contender. Linking them in is
// quicker than writing 10,000 files again, and a rename moves only the
// folder entry either way. The disk is settled before it returns, so that
// every contender renames on a quiet one instead of racing the writeback
// of its own set-up.
void MakeBatchFolder();

// Removes the folder and the pictures.
void RemoveBatchFolders();

}  // namespace renvale::bench
