#include "shell/MapDriveL.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

#include "platform/FileName.h"
#include "platform/MessagePort.h"
#include "platform/NetworkAddress.h"
#include "platform/NetworkShares.h"
#include "platform/widgets/HelpWindow.h"
#include "shell/NetworkLoginDialog.h"
#include "shell/QuickTipOffer.h"
#include "shell/ShellTexts.h"

namespace renvale::shell {
namespace {

constexpr int kMapDriveTip = 18;

QPushButton* NamedButton(QWidget* parent, const char* objectName, const QString& caption) {
  auto* button = new QPushButton(caption, parent);
  button->setObjectName(QString::fromLatin1(objectName));
  button->setAutoDefault(false);
  return button;
}

QByteArray ParsedAddress(const QString& text) {
  const QByteArray typed = text.toUtf8();
  return platform::NetworkAddress::Parse(typed.constData(), size_t(typed.size()));
}

}  // namespace

MapDriveL::MapDriveL(Services services, QWidget* parent) : QDialog(parent), services_(std::move(services)) {
  setObjectName(QStringLiteral("MapDriveL"));
  setWindowTitle(texts::kMapDriveCaption);
  auto* label2 = new QLabel(texts::kNetFolderLabel, this);
  label2->setObjectName(QStringLiteral("Label2"));
  // Typed or pasted as well as chosen: most shares are known by address.
  NetFolder = new QLineEdit(this);
  NetFolder->setObjectName(QStringLiteral("NetFolder"));
  NetFolder->setPlaceholderText(texts::kNoNetFolder);
  NetFolder->setMinimumWidth(420);
  label2->setBuddy(NetFolder);
  Command3 = NamedButton(this, "Command3", texts::kChooseNetFolder);
  Command1 = NamedButton(this, "Command1", texts::kMapButton);
  Command1->setDefault(true);
  Command2 = NamedButton(this, "Command2", texts::kCancelButton);
  Command5 = NamedButton(this, "Command5", texts::kHelpButton);
  platform::AttachHelp(this, Command5, platform::HelpTopic::NetworkShares);

  auto* buttons = new QHBoxLayout;
  buttons->addStretch(1);
  for (QPushButton* button : {Command1, Command2, Command5}) buttons->addWidget(button);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(label2);
  layout->addWidget(NetFolder);
  layout->addWidget(Command3, 0, Qt::AlignLeft);
  layout->addLayout(buttons);

  connect(Command3, &QPushButton::clicked, this, &MapDriveL::OnChoose);
  connect(Command1, &QPushButton::clicked, this, &MapDriveL::OnMap);
  connect(Command2, &QPushButton::clicked, this, &MapDriveL::reject);
}

QByteArray MapDriveL::Run(Services services, QWidget* parent) {
  QuickTipOffer& tips = services.tips;
  MapDriveL dialog(std::move(services), parent);
  // The tip comes once the dialog is up, over it, where the person now looks.
  QTimer::singleShot(0, &dialog, [&tips] { tips.ShowQuickTip(kMapDriveTip); });
  dialog.exec();
  return dialog.MappedFolder();
}

// The desktop's dialog offers network places as addresses ("::" + address);
// a local folder, even one inside a mounted share, is not one to map.
void MapDriveL::OnChoose() {
  const QString chosen = services_.pickFolder(this, texts::kChooseNetFolderPrompt, QString());
  if (chosen.isEmpty()) return;
  if (!chosen.startsWith(QStringLiteral("::"))) {
    services_.messages.Notify(texts::kNotNetworkFolder);
    return;
  }
  const QString address = chosen.mid(2);
  if (ParsedAddress(address).isEmpty()) {
    services_.messages.Notify(texts::kInvalidFolderChosen);
    return;
  }
  NetFolder->setText(address);
}

// Only Cancel stays usable while the server answers.
void MapDriveL::SetMapping(bool on) {
  mapping_ = on;
  for (QWidget* control : std::initializer_list<QWidget*>{NetFolder, Command1, Command3, Command5})
    control->setEnabled(!on);
  if (on) {
    QApplication::setOverrideCursor(Qt::BusyCursor);
  } else {
    QApplication::restoreOverrideCursor();
  }
}

void MapDriveL::reject() {
  if (mapping_) {
    services_.shares.CancelMap();
    return;
  }
  QDialog::reject();
}

void MapDriveL::OnMap() {
  if (NetFolder->text().trimmed().isEmpty()) {
    services_.messages.Notify(texts::kPleaseChooseNetFolder);
    return;
  }
  const QByteArray uri = ParsedAddress(NetFolder->text());
  if (uri.isEmpty()) {
    services_.messages.Notify(texts::kNotNetworkFolder);
    return;
  }
  SetMapping(true);
  const auto askLogin = [this](const platform::LoginRequest& request, platform::LoginAnswer* answer) {
    QApplication::restoreOverrideCursor();
    const bool given = NetworkLoginDialog::Ask(request, answer, this);
    QApplication::setOverrideCursor(Qt::BusyCursor);
    return given;
  };
  // A server's question (an unknown host key) is answered with its first
  // choice, "log in anyway", only on the person's OK.
  const auto askChoice = [this](const QString& question, const std::vector<QString>&) {
    return services_.messages.Ask(question, platform::MessageButtons::OkCancel, platform::MessageIcon::Question) ==
                   platform::MessageAnswer::Ok
               ? 0
               : -1;
  };
  const platform::MapResult result = services_.shares.Map(uri, askLogin, askChoice);
  SetMapping(false);
  if (result.declined) return;
  if (result.error != 0 || result.localFolder.isEmpty()) {
    services_.messages.Notify(result.error != 0 ? texts::CouldNotMapText(result.error) : texts::kCouldNotMapChosen);
    return;
  }
  mapped_ = result.localFolder;
  services_.messages.Notify(
      texts::MappedText(platform::FileName::NameToText(result.localFolder), NetFolder->text().trimmed()));
  accept();
}

}  // namespace renvale::shell
