#include "shell/SandR.h"

#include <QApplication>
#include <QCloseEvent>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QScreen>
#include <QTimer>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include "fileops/FileopsTexts.h"
#include "fileops/SearchReplace.h"
#include "platform/widgets/HelpWindow.h"
#include "shell/SandRresults.h"

namespace renvale::shell {

namespace texts = fileops::texts;

namespace {

// Ten times a second, as the main window does: the bar still moves
// smoothly, and each drawing of it costs as much as a few dozen renames.
constexpr qint64 kEventIntervalMs = 100;
constexpr int kSearchReplaceTip = 17;

// A caption as it shows: "&&" is one ampersand.
QString Shown(const QString& caption) { return QString(caption).replace(QStringLiteral("&&"), QStringLiteral("&")); }

QPushButton* NamedButton(QWidget* parent, const char* objectName, const QString& caption) {
  auto* button = new QPushButton(caption, parent);
  button->setObjectName(QString::fromLatin1(objectName));
  button->setAutoDefault(false);
  return button;
}

QLineEdit* TermBox(QWidget* parent, const char* objectName, QLabel* label) {
  auto* box = new QLineEdit(parent);
  box->setObjectName(QString::fromLatin1(objectName));
  box->setAccessibleName(label->text());
  label->setBuddy(box);
  return box;
}

}  // namespace

SandR::SandR(const core::RenameContext& context, QWidget* parent) : QDialog(parent), context_(context) {
  setObjectName(QStringLiteral("SandR"));
  setWindowTitle(texts::kSandRCaption);
  BuildControls();
}

void SandR::Open(const core::RenameContext& context, QWidget* parent) {
  if (!fileops::SearchReplace::SelectionAllowsSearch(context)) return;
  SandR dialog(context, parent);
  // The tip comes once the dialog is up, over it, where the person now looks.
  QTimer::singleShot(0, &dialog, [&context] { context.view.ShowQuickTip(kSearchReplaceTip); });
  dialog.exec();
}

void SandR::BuildControls() {
  auto* instruction = new QLabel(Shown(texts::kSandRInstruction), this);
  instruction->setObjectName(QStringLiteral("Label1"));
  instruction->setWordWrap(true);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(instruction);
  for (int k = 0; k < fileops::SearchTerms::kCount; ++k) layout->addWidget(BuildTermRow(k));

  Scanning = new QLabel(texts::kScanning, this);
  Scanning->setObjectName(QStringLiteral("Scanning"));
  Scanning->setVisible(false);
  ProgressBar1 = new QProgressBar(this);
  ProgressBar1->setObjectName(QStringLiteral("ProgressBar1"));
  ProgressBar1->setAccessibleName(texts::kScanning);
  layout->addWidget(Scanning);
  layout->addWidget(ProgressBar1);

  Command2 = NamedButton(this, "Command2", texts::kExecuteButton);
  Command1 = NamedButton(this, "Command1", texts::kExitButton);
  Command3 = NamedButton(this, "Command3", texts::kHelpButton);
  platform::AttachHelp(this, Command3, platform::HelpTopic::SearchReplace);
  auto* buttons = new QHBoxLayout;
  buttons->addWidget(Command2);
  buttons->addStretch(1);
  buttons->addWidget(Command1);
  buttons->addWidget(Command3);
  layout->addLayout(buttons);

  connect(Command2, &QPushButton::clicked, this, &SandR::OnExecute);
  connect(Command1, &QPushButton::clicked, this, &QDialog::accept);
}

QWidget* SandR::BuildTermRow(int index) {
  auto* group = new QGroupBox(texts::kSearchTermCaption.arg(index + 1), this);
  group->setObjectName(QStringLiteral("Frame1"));
  auto* row = new QHBoxLayout(group);
  auto* contains = new QLabel(texts::kIfFilenameContains, group);
  auto* with = new QLabel(texts::kReplaceItWith, group);
  SearchTerm[static_cast<size_t>(index)] = TermBox(group, "SearchTerm", contains);
  ReplaceTerm[static_cast<size_t>(index)] = TermBox(group, "ReplaceTerm", with);
  row->addWidget(contains);
  row->addWidget(SearchTerm[static_cast<size_t>(index)], 1);
  row->addWidget(with);
  row->addWidget(ReplaceTerm[static_cast<size_t>(index)], 1);
  return group;
}

void SandR::showEvent(QShowEvent* event) {
  QDialog::showEvent(event);
  if (const QScreen* screen = this->screen()) move(screen->availableGeometry().center() - rect().center());
  SetProgressMaximum(std::max<int>(1, static_cast<int>(context_.view.SelectedFiles().size())));
  ProgressBar1->setValue(0);
}

void SandR::OnExecute() {
  fileops::SearchTerms terms;
  for (int k = 0; k < fileops::SearchTerms::kCount; ++k) {
    terms.Set(k, SearchTerm[static_cast<size_t>(k)]->text(), ReplaceTerm[static_cast<size_t>(k)]->text());
  }
  fileops::SearchReplace(context_, *this).Execute(terms);
}

void SandR::SetRunning(bool running) {
  if (running) results_.reset();
  ShowHeldProgress();
  running_ = running;
  Command1->setEnabled(!running);
  Command2->setEnabled(!running);
  Scanning->setVisible(running);
  sinceEvents_.start();
}

void SandR::SetProgressMaximum(int maximum) {
  ProgressBar1->setRange(0, maximum);
  heldProgress_ = -1;
}

// During a run the value is held and painted when events run: a progress
// bar repaints at once on every change, which costs more than a rename.
void SandR::SetProgress(int value) {
  if (running_) {
    heldProgress_ = value;
  } else {
    ProgressBar1->setValue(value);
  }
}

void SandR::ShowHeldProgress() {
  if (heldProgress_ >= 0) ProgressBar1->setValue(heldProgress_);
  heldProgress_ = -1;
}

void SandR::ProcessEvents() {
  if (sinceEvents_.isValid() && sinceEvents_.elapsed() < kEventIntervalMs) return;
  ShowHeldProgress();
  QApplication::processEvents();
  sinceEvents_.start();
}

// What was handed before is kept only where `results` goes on from it.
void SandR::ResultsReady(const QString& results) {
  if (!results_ || !results_->Continues(results)) results_ = std::make_unique<BackgroundTextDocument>(font());
  results_->Append(results.sliced(results_->Size()));
}

void SandR::ShowResults(const QString& results) {
  ResultsReady(results);
  SandRresults window(std::exchange(results_, nullptr)->Take(), this);
  window.exec();
}

// Escape and the title bar's close wait until the run is over.
void SandR::reject() {
  if (!running_) QDialog::reject();
}

void SandR::closeEvent(QCloseEvent* event) {
  if (running_) {
    event->ignore();
    return;
  }
  QDialog::closeEvent(event);
}

}  // namespace renvale::shell
