#pragma once

#include <QDialog>

#include "core/BatchPreview.h"

class QLabel;
class QPushButton;
class QTableView;

namespace renvale::shell {

class NamePreviewModel;

// "Preview New Names...": every selected file's new name before anything is
// renamed. "Start Batch Renaming" closes it accepted; the caller then runs
// the batch with the names shown.
class NamePreviewDialog : public QDialog {
  Q_OBJECT

 public:
  explicit NamePreviewDialog(QWidget* parent = nullptr);

  void SetPreview(const core::BatchPreview& preview);

  QTableView* List() const { return list_; }
  QPushButton* StartButton() const { return start_; }

 private:
  NamePreviewModel* model_ = nullptr;
  QLabel* warnings_ = nullptr;
  QLabel* summary_ = nullptr;
  QTableView* list_ = nullptr;
  QPushButton* start_ = nullptr;
};

}  // namespace renvale::shell
