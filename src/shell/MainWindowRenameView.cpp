#include "shell/MainWindowRenameView.h"

#include <QApplication>
#include <QItemSelectionModel>
#include <QLabel>
#include <QLineEdit>
#include <QCheckBox>
#include <QListView>
#include <QProgressBar>
#include <algorithm>

#include "shell/BrowsePane.h"
#include "shell/FileListModel.h"
#include "shell/MainWindow.h"
#include "shell/PreviewPane.h"
#include "shell/QuickTipOffer.h"

namespace renvale::shell {
namespace {

// Files can go faster than a screen refreshes. Ten times a second keeps
// the progress moving and a click answered within the tenth of a second a
// person takes for at once; each drawing of the boxes and the bar (and of
// the frame around them) costs as much as renaming a hundred files, so
// drawing more often only slows the batch down.
constexpr qint64 kEventIntervalMs = 100;

}  // namespace

QString MainWindowRenameView::NewNameText() const { return nameHeld_ ? heldName_ : window_.Ui().Text1->text(); }

void MainWindowRenameView::SetNewNameText(const QString& text) {
  if (!batchRunning_) {
    window_.Ui().Text1->setText(text);
    return;
  }
  heldName_ = text;
  nameHeld_ = true;
}

QString MainWindowRenameView::SeriesText() const {
  return seriesHeld_ ? heldSeries_ : window_.Ui().Text2->text();
}

void MainWindowRenameView::SetSeriesText(const QString& text) {
  if (!batchRunning_) {
    window_.Ui().Text2->setText(text);
    return;
  }
  heldSeries_ = text;
  seriesHeld_ = true;
}

bool MainWindowRenameView::RandomSeries() const { return window_.Ui().Check1->isChecked(); }

std::vector<platform::FileName> MainWindowRenameView::SelectedFiles() const {
  std::vector<int> rows;
  for (const QItemSelectionRange& range : window_.Ui().File1->selectionModel()->selection()) {
    for (int row = range.top(); row <= range.bottom(); ++row) rows.push_back(row);
  }
  std::sort(rows.begin(), rows.end());
  std::vector<platform::FileName> files;
  files.reserve(rows.size());
  for (int row : rows) files.push_back(window_.Files().FileAt(row));
  return files;
}

void MainWindowRenameView::RefreshFileList() { window_.RefreshFileList(); }

bool MainWindowRenameView::SelectFileNamed(const QString& name) {
  const int row = window_.Files().FindCaseInsensitive(name);
  if (row < 0) return false;
  const QModelIndex index = window_.Files().index(row);
  QItemSelectionModel* selection = window_.Ui().File1->selectionModel();
  selection->setCurrentIndex(index, QItemSelectionModel::ClearAndSelect);
  window_.Ui().File1->scrollTo(index);
  return true;
}

void MainWindowRenameView::LeaveBatchMode() { window_.SetBatchMode(false); }

void MainWindowRenameView::SetSelectionLabel(const QString& text) { window_.Ui().selectionLabel->setText(text); }

void MainWindowRenameView::ResetPreview(const QString& caption) {
  window_.Preview().ReleasePreview();
  window_.Ui().previewCaption->setText(caption);
}

void MainWindowRenameView::PreviewSelected() { window_.Preview().ShowPreview(); }

// While a batch runs the list and the folder panes take no clicks.
void MainWindowRenameView::ShowProgress(bool visible) {
  MainWindowUi& ui = window_.Ui();
  ShowHeldValues();
  batchRunning_ = visible;
  ui.ProgressBar1->setValue(0);
  ui.processingLabel->setVisible(visible);
  ui.File1->setEnabled(!visible);
  ui.browse->setEnabled(!visible);
  sinceEvents_.start();
}

void MainWindowRenameView::SetProgress(int percent) {
  if (batchRunning_) {
    heldPercent_ = percent;
  } else {
    window_.Ui().ProgressBar1->setValue(percent);
  }
}

void MainWindowRenameView::ShowHeldValues() {
  MainWindowUi& ui = window_.Ui();
  if (nameHeld_) ui.Text1->setText(heldName_);
  if (seriesHeld_) ui.Text2->setText(heldSeries_);
  if (heldPercent_ >= 0) {
    // A progress bar paints itself at once when its value changes; held
    // back, it is painted with the boxes in one pass when events run.
    ui.ProgressBar1->setUpdatesEnabled(false);
    ui.ProgressBar1->setValue(heldPercent_);
    ui.ProgressBar1->setUpdatesEnabled(true);
  }
  nameHeld_ = false;
  seriesHeld_ = false;
  heldPercent_ = -1;
}

void MainWindowRenameView::ProcessEvents() {
  if (sinceEvents_.isValid() && sinceEvents_.elapsed() < kEventIntervalMs) return;
  ShowHeldValues();
  QApplication::processEvents();
  sinceEvents_.start();
}

void MainWindowRenameView::ShowQuickTip(int tipNumber) { window_.Tips().ShowQuickTip(tipNumber); }

}  // namespace renvale::shell
