#pragma once

#include <QDialog>
#include <QElapsedTimer>
#include <array>
#include <memory>

#include "core/RenameContext.h"
#include "fileops/SearchReplaceView.h"
#include "fileops/SearchTerms.h"
#include "shell/BackgroundTextDocument.h"

class QLabel;
class QLineEdit;
class QProgressBar;
class QPushButton;

namespace renvale::shell {

// "Filename Search & Replace": six pairs of terms applied to the names of
// the files selected in the main window. The dialog stays open after a run,
// terms and all, until "Exit".
class SandR : public QDialog, public fileops::SearchReplaceView {
  Q_OBJECT

 public:
  SandR(const core::RenameContext& context, QWidget* parent);

  // The Tools menu's command: refuses an empty selection, else shows the
  // dialog modally.
  static void Open(const core::RenameContext& context, QWidget* parent);

  // SearchReplaceView
  void SetRunning(bool running) override;
  void SetProgressMaximum(int maximum) override;
  void SetProgress(int value) override;
  void ShowProgressNow() override { ShowHeldProgress(); }
  void ProcessEvents() override;
  void ResultsReady(const QString& results) override;
  void ShowResults(const QString& results) override;

  void reject() override;

 protected:
  void showEvent(QShowEvent* event) override;
  void closeEvent(QCloseEvent* event) override;

 private:
  void BuildControls();
  QWidget* BuildTermRow(int index);
  void OnExecute();
  void ShowHeldProgress();

  const core::RenameContext& context_;
  std::array<QLineEdit*, fileops::SearchTerms::kCount> SearchTerm{};
  std::array<QLineEdit*, fileops::SearchTerms::kCount> ReplaceTerm{};
  QPushButton* Command1 = nullptr;  // Exit
  QPushButton* Command2 = nullptr;  // Execute Search && Replace
  QPushButton* Command3 = nullptr;  // Help
  QProgressBar* ProgressBar1 = nullptr;
  QLabel* Scanning = nullptr;
  bool running_ = false;
  int heldProgress_ = -1;
  QElapsedTimer sinceEvents_;
  std::unique_ptr<BackgroundTextDocument> results_;  // the run's results, laid out as they come
};

}  // namespace renvale::shell
