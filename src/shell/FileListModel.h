#pragma once

#include <QAbstractListModel>
#include <QStringList>
#include <vector>

#include "platform/FileName.h"

namespace renvale::shell {

// The files of the current folder as the list `File1` shows them. Keeps the
// raw name of every row beside its display text, so a selection always maps
// back to the exact bytes on disk.
class FileListModel : public QAbstractListModel {
  Q_OBJECT

 public:
  using QAbstractListModel::QAbstractListModel;

  void SetFiles(std::vector<platform::FileName> files);
  const platform::FileName& FileAt(int row) const { return files_[static_cast<size_t>(row)]; }
  int Count() const { return static_cast<int>(files_.size()); }
  // First row whose display name equals `name` without regard to case, or -1.
  int FindCaseInsensitive(const QString& name) const;

  int rowCount(const QModelIndex& parent = QModelIndex()) const override;
  QVariant data(const QModelIndex& index, int role) const override;

 private:
  std::vector<platform::FileName> files_;
  QStringList display_;
};

}  // namespace renvale::shell
