#pragma once

#include <QByteArray>
#include <QString>
#include <vector>

#include "core/FileFilterPatterns.h"
#include "platform/FileName.h"
#include "platform/FileSystem.h"

namespace renvale::core {

// The files the file list shows for `folder` (raw bytes, trailing '/'):
// entries that are not folders, without dot files, matching `patterns`
// (see FileNameFilter), in natural order (see NaturalOrder). Names stay the
// raw bytes the folder holds. Returns the listing's error number; on error
// `files` is empty.
int ListFolderFiles(platform::FileSystem& fileSystem, const QByteArray& folder, const QString& patterns,
                    std::vector<platform::FileName>* files);

int ListFolderFiles(platform::FileSystem& fileSystem, const QByteArray& folder, FileFilter filter,
                    std::vector<platform::FileName>* files);

}  // namespace renvale::core
