#pragma once

#include <QAbstractTableModel>
#include <vector>

#include "core/BatchPreview.h"

namespace renvale::shell {

// The rows of the name preview for a table view: current name, new name,
// date source and notes. Rows are made only when the view asks for them,
// so ten thousand files show and scroll at once.
class NamePreviewModel : public QAbstractTableModel {
  Q_OBJECT

 public:
  enum Column { Current, New, DateSource, Notes, ColumnCount };

  explicit NamePreviewModel(QObject* parent = nullptr);

  void SetRows(std::vector<core::PreviewRow> rows);

  int rowCount(const QModelIndex& parent = QModelIndex()) const override;
  int columnCount(const QModelIndex& parent = QModelIndex()) const override;
  QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

 private:
  std::vector<core::PreviewRow> rows_;
};

}  // namespace renvale::shell
