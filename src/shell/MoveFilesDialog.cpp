#include "shell/MoveFilesDialog.h"

#include <QApplication>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QTimer>
#include <QVBoxLayout>

#include "core/CoreTexts.h"
#include "core/RenameView.h"
#include "fileops/FileTransfer.h"
#include "fileops/FolderHistory.h"
#include "fileops/FileopsTexts.h"
#include "platform/MessagePort.h"
#include "platform/widgets/HelpWindow.h"
#include "shell/SmartNameResultsDialog.h"

namespace renvale::shell {
namespace {

namespace text = fileops::transfer_text;

constexpr int kTransferTip = 16;

// Only controls that show no text of their own get an accessible name: the
// others are spoken by what they show, also after it changes.
template <typename Widget>
Widget* Named(Widget* widget, const char* objectName) {
  widget->setObjectName(QString::fromLatin1(objectName));
  return widget;
}

QPushButton* NamedButton(QWidget* parent, const char* objectName, const QString& caption) {
  auto* button = Named(new QPushButton(caption, parent), objectName);
  button->setAutoDefault(false);
  return button;
}

}  // namespace

MoveFilesDialog::MoveFilesDialog(Services services, QWidget* parent)
    : QDialog(parent), services_(std::move(services)) {
  setObjectName(QStringLiteral("frmMoveFiles"));
  setWindowTitle(text::kDialogCaption);
  BuildControls();
  ShowMode();
  ShowHistory();
  ShowDestination();
}

void MoveFilesDialog::Run(Services services, bool fileSelected, QWidget* parent) {
  if (!fileSelected) {
    services.messages.Notify(core::texts::kNoFileIsSelected);
    return;
  }
  core::RenameView& mainView = services.mainView;
  MoveFilesDialog dialog(std::move(services), parent);
  // The tip comes once the dialog is up, over it, where the person now looks.
  QTimer::singleShot(0, &dialog, [&mainView] { mainView.ShowQuickTip(kTransferTip); });
  dialog.exec();
}

void MoveFilesDialog::BuildControls() {
  auto* label2 = Named(new QLabel(text::kDestinationLabel, this), "Label2");
  FolderName = Named(new QLabel(this), "FolderName");
  FolderName->setFrameShape(QFrame::StyledPanel);
  FolderName->setTextInteractionFlags(Qt::TextSelectableByMouse);
  Command1 = NamedButton(this, "Command1", text::kChooseDestination);
  auto* label1 = Named(new QLabel(text::kHistoryLabel, this), "Label1");
  FolderHistory = Named(new QListWidget(this), "FolderHistory");
  FolderHistory->setAccessibleName(text::kHistoryLabel);
  label1->setBuddy(FolderHistory);
  Command2 = NamedButton(this, "Command2", text::kClearHistory);
  Command3 = NamedButton(this, "Command3", text::kTransferFiles);
  Command4 = NamedButton(this, "Command4", text::kExit);
  Command5 = NamedButton(this, "Command5", text::kHelp);
  platform::AttachHelp(this, Command5, platform::HelpTopic::MoveCopy);
  ProgressBar1 = Named(new QProgressBar(this), "ProgressBar1");
  ProgressBar1->setAccessibleName(text::kProgress);
  ProgressBar1->setRange(0, 1);
  ProgressBar1->setValue(0);

  auto* options = new QHBoxLayout;
  options->addWidget(BuildModeFrame());
  options->addWidget(BuildPolicyFrame(), 1);
  auto* buttons = new QHBoxLayout;
  for (QPushButton* button : {Command3, Command4, Command5}) buttons->addWidget(button);
  auto* layout = new QVBoxLayout(this);
  layout->addLayout(options);
  layout->addWidget(label2);
  layout->addWidget(FolderName);
  layout->addWidget(Command1, 0, Qt::AlignLeft);
  layout->addWidget(label1);
  layout->addWidget(FolderHistory, 1);
  layout->addWidget(Command2, 0, Qt::AlignLeft);
  layout->addWidget(ProgressBar1);
  layout->addLayout(buttons);
  resize(640, 460);

  connect(Command1, &QPushButton::clicked, this, &MoveFilesDialog::OnChooseFolder);
  connect(FolderHistory, &QListWidget::itemDoubleClicked, this,
          [this](QListWidgetItem* item) { UseFolder(item->text()); });
  connect(Command2, &QPushButton::clicked, this, &MoveFilesDialog::OnClearHistory);
  connect(Command3, &QPushButton::clicked, this, &MoveFilesDialog::OnTransfer);
  connect(Command4, &QPushButton::clicked, this, &MoveFilesDialog::reject);
}

// Index 0 is "Copy" and 1 "Move", the values the settings keep.
QWidget* MoveFilesDialog::BuildModeFrame() {
  auto* frame = Named(new QGroupBox(text::kModeFrame, this), "Frame2");
  auto* layout = new QVBoxLayout(frame);
  const QString captions[] = {text::kCopy, text::kMove};
  for (int i = 0; i < 2; ++i) {
    auto* option = Named(new QRadioButton(captions[i], frame), "Option2");
    connect(option, &QRadioButton::clicked, this, [this, i] { services_.settings.transferMode = i; });
    Option2[static_cast<size_t>(i)] = option;
  }
  // Move above Copy, as the frame has always shown them.
  layout->addWidget(Option2[1]);
  layout->addWidget(Option2[0]);
  layout->addStretch(1);
  return frame;
}

QWidget* MoveFilesDialog::BuildPolicyFrame() {
  auto* frame = Named(new QGroupBox(text::kPolicyFrame, this), "Frame1");
  auto* layout = new QVBoxLayout(frame);
  const QString captions[] = {text::kPolicyAsk, text::kPolicyNever, text::kPolicyAlways, text::kPolicySmartName};
  for (int i = 0; i < 4; ++i) {
    auto* option = Named(new QRadioButton(captions[i], frame), "Option1");
    connect(option, &QRadioButton::clicked, this, [this, i] { services_.settings.moveOption = i; });
    layout->addWidget(option);
    Option1[static_cast<size_t>(i)] = option;
  }
  return frame;
}

void MoveFilesDialog::ShowMode() {
  Option2[services_.settings.transferMode == fileops::kMoveMode ? 1 : 0]->setChecked(true);
  const int policy = services_.settings.moveOption;
  Option1[static_cast<size_t>(policy >= 0 && policy < 4 ? policy : 0)]->setChecked(true);
}

void MoveFilesDialog::ShowHistory() {
  FolderHistory->clear();
  FolderHistory->addItems(fileops::FolderHistory::FromStored(services_.settings.folderHistory).Entries());
}

void MoveFilesDialog::ShowDestination() {
  const QString& folder = services_.settings.lastMovePath;
  FolderName->setText(folder.isEmpty() ? text::kNoDestination : folder);
}

void MoveFilesDialog::OnChooseFolder() {
  if (transferring_) return;
  const QString chosen =
      services_.pickFolder(this, text::kChoosePrompt, services_.settings.lastMovePath);
  if (chosen.startsWith(QStringLiteral("::"))) {
    services_.messages.Notify(text::kInvalidFolder);
    return;
  }
  if (!chosen.isEmpty()) UseFolder(chosen);
}

void MoveFilesDialog::UseFolder(const QString& folder) {
  if (transferring_) return;
  const QString withSlash = folder.endsWith(QLatin1Char('/')) ? folder : folder + QLatin1Char('/');
  fileops::FolderHistory history = fileops::FolderHistory::FromStored(services_.settings.folderHistory);
  history.Add(withSlash);
  services_.settings.folderHistory = history.ToStored();
  services_.settings.lastMovePath = withSlash;
  ShowHistory();
  ShowDestination();
}

void MoveFilesDialog::OnClearHistory() {
  if (services_.messages.Ask(text::kClearHistoryQuestion, platform::MessageButtons::YesNo,
                             platform::MessageIcon::Question) != platform::MessageAnswer::Yes) {
    return;
  }
  services_.settings.folderHistory = {};
  services_.settings.lastMovePath.clear();
  ShowHistory();
  ShowDestination();
}

void MoveFilesDialog::OnTransfer() {
  if (transferring_) {
    if (services_.messages.Ask(text::kCancelTransferQuestion, platform::MessageButtons::YesNo,
                               platform::MessageIcon::Question) == platform::MessageAnswer::Yes) {
      cancelRequested_ = true;
    }
    return;
  }
  if (services_.settings.lastMovePath.isEmpty()) {
    services_.messages.Notify(text::kChooseFirst);
    return;
  }
  cancelRequested_ = false;
  // The preview may be playing one of the files: it lets go before any of
  // them moves, and the list is read afresh afterwards anyway.
  services_.mainView.ResetPreview(QString());
  fileops::FileTransfer transfer(
      {services_.sourceFolder, services_.settings, services_.messages, services_.fs, *this, services_.recorder});
  transfer.Run(platform::FileName::FromDisplay(services_.settings.lastMovePath).raw);
}

std::vector<platform::FileName> MoveFilesDialog::SelectedFiles() const { return services_.mainView.SelectedFiles(); }

void MoveFilesDialog::SetTransferring(bool on, int files) {
  transferring_ = on;
  Command3->setText(on ? text::kCancel : text::kTransferFiles);
  for (QWidget* widget : {static_cast<QWidget*>(Command1), static_cast<QWidget*>(Command2),
                          static_cast<QWidget*>(Command4), static_cast<QWidget*>(FolderHistory),
                          static_cast<QWidget*>(Option1[0]->parentWidget()),
                          static_cast<QWidget*>(Option2[0]->parentWidget())}) {
    widget->setEnabled(!on);
  }
  if (on) {
    ProgressBar1->setRange(0, files > 0 ? files : 1);
    ProgressBar1->setValue(0);
  }
}

void MoveFilesDialog::AdvanceProgress() {
  if (ProgressBar1->value() < ProgressBar1->maximum()) ProgressBar1->setValue(ProgressBar1->value() + 1);
}

void MoveFilesDialog::ProcessEvents() { QApplication::processEvents(); }

void MoveFilesDialog::RefreshFileList() {
  services_.mainView.RefreshFileList();
  services_.mainView.SetSelectionLabel(core::texts::kNoFileSelectedLabelAfterRename);
}

void MoveFilesDialog::ShowSmartNameResults(const QString& report) {
  SmartNameResultsDialog results(report, this);
  results.exec();
}

// Escape and the close box wait for the file in hand like "Cancel" does.
void MoveFilesDialog::reject() {
  if (transferring_) {
    OnTransfer();
    return;
  }
  QDialog::reject();
}

}  // namespace renvale::shell
