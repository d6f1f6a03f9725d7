#include "shell/FileListModel.h"

namespace renvale::shell {

void FileListModel::SetFiles(std::vector<platform::FileName> files) {
  beginResetModel();
  files_ = std::move(files);
  display_.clear();
  display_.reserve(static_cast<qsizetype>(files_.size()));
  for (const auto& file : files_) display_.append(file.Display());
  endResetModel();
}

int FileListModel::FindCaseInsensitive(const QString& name) const {
  for (qsizetype row = 0; row < display_.size(); ++row) {
    if (display_[row].compare(name, Qt::CaseInsensitive) == 0) return static_cast<int>(row);
  }
  return -1;
}

int FileListModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(display_.size());
}

QVariant FileListModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid() || index.row() >= display_.size()) return {};
  if (role == Qt::DisplayRole || role == Qt::AccessibleTextRole) return display_[index.row()];
  return {};
}

}  // namespace renvale::shell
