#include "shell/NamePreviewModel.h"

#include "shell/ShellTexts.h"

namespace renvale::shell {

NamePreviewModel::NamePreviewModel(QObject* parent) : QAbstractTableModel(parent) {}

void NamePreviewModel::SetRows(std::vector<core::PreviewRow> rows) {
  beginResetModel();
  rows_ = std::move(rows);
  endResetModel();
}

int NamePreviewModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

int NamePreviewModel::columnCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : ColumnCount; }

QVariant NamePreviewModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid() || index.row() >= rowCount()) return {};
  const core::PreviewRow& row = rows_[static_cast<size_t>(index.row())];
  if (role != Qt::DisplayRole && role != Qt::ToolTipRole) return {};
  switch (index.column()) {
    case Current: return row.current;
    case New: return row.newName;
    case DateSource: return row.dateSource;
    case Notes: return row.notes.join(role == Qt::ToolTipRole ? QStringLiteral("\n") : QStringLiteral(" "));
    default: return {};
  }
}

QVariant NamePreviewModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (role != Qt::DisplayRole) return {};
  if (orientation == Qt::Vertical) return section + 1;  // the row numbers the notes refer to
  switch (section) {
    case Current: return texts::kPreviewColumnCurrent;
    case New: return texts::kPreviewColumnNew;
    case DateSource: return texts::kPreviewColumnDate;
    case Notes: return texts::kPreviewColumnNotes;
    default: return {};
  }
}

}  // namespace renvale::shell
