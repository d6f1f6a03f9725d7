#include "shell/DisDrive.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

#include "platform/FileName.h"
#include "platform/MessagePort.h"
#include "platform/widgets/HelpWindow.h"
#include "shell/ShellTexts.h"

namespace renvale::shell {
namespace {

QPushButton* NamedButton(QWidget* parent, const char* objectName, const QString& caption) {
  auto* button = new QPushButton(caption, parent);
  button->setObjectName(QString::fromLatin1(objectName));
  button->setAutoDefault(false);
  return button;
}

// A share is named by its local folder, as a drive by its letter; one
// without (GVfs without FUSE) by its address.
QString DriveName(const platform::NetworkMount& mount) {
  return mount.localFolder.isEmpty() ? mount.address : platform::FileName::NameToText(mount.localFolder);
}

QString Entry(const platform::NetworkMount& mount) {
  if (mount.localFolder.isEmpty()) return mount.address;
  return DriveName(mount) + QStringLiteral("   (") + mount.address + QStringLiteral(")");
}

}  // namespace

DisDrive::DisDrive(platform::NetworkShares& shares, platform::MessagePort& messages, QWidget* parent)
    : QDialog(parent), shares_(shares), messages_(messages) {
  setObjectName(QStringLiteral("DisDrive"));
  setWindowTitle(texts::kDisDriveCaption);
  auto* label1 = new QLabel(texts::kChooseDriveToDisconnect, this);
  label1->setObjectName(QStringLiteral("Label1"));
  Combo1 = new QComboBox(this);
  Combo1->setObjectName(QStringLiteral("Combo1"));
  Combo1->setMinimumContentsLength(48);
  label1->setBuddy(Combo1);
  Command1 = NamedButton(this, "Command1", texts::kDisconnectButton);
  Command1->setDefault(true);
  Command2 = NamedButton(this, "Command2", texts::kCancelButton);
  Command3 = NamedButton(this, "Command3", texts::kHelpButton);
  platform::AttachHelp(this, Command3, platform::HelpTopic::NetworkShares);

  auto* buttons = new QHBoxLayout;
  buttons->addStretch(1);
  for (QPushButton* button : {Command1, Command2, Command3}) buttons->addWidget(button);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(label1);
  layout->addWidget(Combo1);
  layout->addLayout(buttons);

  connect(Command1, &QPushButton::clicked, this, &DisDrive::OnDisconnect);
  connect(Command2, &QPushButton::clicked, this, &QDialog::reject);
  FillList();
}

bool DisDrive::Run(platform::NetworkShares& shares, platform::MessagePort& messages, QWidget* parent) {
  DisDrive dialog(shares, messages, parent);
  dialog.exec();
  return dialog.DisconnectedAny();
}

void DisDrive::FillList() {
  mounts_ = shares_.List();
  Combo1->clear();
  for (const platform::NetworkMount& mount : mounts_) Combo1->addItem(Entry(mount));
  Command1->setEnabled(!mounts_.empty());
}

// With nothing to disconnect the dialog says so once it is up, and goes.
void DisDrive::showEvent(QShowEvent* event) {
  QDialog::showEvent(event);
  if (!mounts_.empty() || announced_) return;
  announced_ = true;
  QTimer::singleShot(0, this, [this] {
    messages_.Notify(texts::kNoMappedDrives);
    reject();
  });
}

void DisDrive::OnDisconnect() {
  const int index = Combo1->currentIndex();
  if (index < 0 || size_t(index) >= mounts_.size()) return;
  const platform::NetworkMount mount = mounts_[size_t(index)];
  if (shares_.Disconnect(mount) != 0) {
    messages_.Notify(texts::kCouldNotDisconnect);
    FillList();
    return;
  }
  disconnected_ = true;
  messages_.Notify(texts::DisconnectedText(DriveName(mount)));
  FillList();
  if (mounts_.empty()) accept();
}

}  // namespace renvale::shell
