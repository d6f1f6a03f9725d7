#include "core/FolderListing.h"

#include <algorithm>

#include "core/FileNameFilter.h"
#include "core/NaturalOrder.h"

namespace renvale::core {

int ListFolderFiles(platform::FileSystem& fileSystem, const QByteArray& folder, const QString& patterns,
                    std::vector<platform::FileName>* files) {
  files->clear();
  std::vector<QByteArray> names;
  if (const int error = fileSystem.ListFiles(folder, &names)) return error;
  const FileNameFilter filter(patterns);
  names.erase(std::remove_if(names.begin(), names.end(),
                             [&filter](const QByteArray& name) {
                               return name.startsWith('.') || !filter.Matches(name);
                             }),
              names.end());
  const std::vector<size_t> order = NaturalOrder(names);
  files->reserve(order.size());
  for (const size_t index : order) files->push_back(platform::FileName{std::move(names[index])});
  return 0;
}

int ListFolderFiles(platform::FileSystem& fileSystem, const QByteArray& folder, FileFilter filter,
                    std::vector<platform::FileName>* files) {
  return ListFolderFiles(fileSystem, folder, FilterPatterns(filter), files);
}

}  // namespace renvale::core
