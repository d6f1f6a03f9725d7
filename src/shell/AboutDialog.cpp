#include "shell/AboutDialog.h"

#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>

#include "platform/MessagePort.h"
#include "platform/widgets/DesktopLinks.h"
#include "shell/BuildInfo.h"
#include "shell/ShellTexts.h"

namespace renvale::shell {
namespace {

QLabel* NamedLabel(QWidget* parent, const char* name, const QString& text) {
  auto* label = new QLabel(text, parent);
  label->setObjectName(QString::fromLatin1(name));
  label->setAlignment(Qt::AlignCenter);
  return label;
}

// A label showing `address` as a link; left out when the build gave no
// address, since a made-up one would lead nowhere.
QLabel* LinkLabel(QWidget* parent, const char* name, const QString& address, bool (*open)(const QString&)) {
  QLabel* label = NamedLabel(parent, name, QString());
  label->setVisible(!address.isEmpty());
  if (address.isEmpty()) return label;
  label->setText(QStringLiteral("<a href=\"#\">%1</a>").arg(address.toHtmlEscaped()));
  label->setTextInteractionFlags(Qt::TextBrowserInteraction);
  label->setAccessibleName(address);
  QObject::connect(label, &QLabel::linkActivated, label, [address, open] { open(address); });
  return label;
}

}  // namespace

AboutDialog::AboutDialog(QWidget* parent) : QDialog(parent) {
  setObjectName(QStringLiteral("frmAbout"));
  setWindowTitle(texts::kAboutCaption + platform::kProgramTitle);
  lblTitle = NamedLabel(this, "lblTitle", platform::kProgramTitle);
  QFont big = lblTitle->font();
  big.setPointSizeF(big.pointSizeF() * 2);
  big.setBold(true);
  lblTitle->setFont(big);
  lblVersion = NamedLabel(this, "lblVersion",
                          VersionText(build::kVersionMajor, build::kVersionMinor, build::kVersionRevision));
  lblDescription = NamedLabel(this, "lblDescription", texts::kAboutDescription);
  lblSupport = LinkLabel(this, "lblSupport", QString::fromUtf8(build::kSupportEmail), platform::WriteEmailTo);
  lblWebsite = LinkLabel(this, "lblWebsite", QString::fromUtf8(build::kWebsiteUrl), platform::OpenInBrowser);
  cmdOK = new QPushButton(texts::kAboutOk, this);
  cmdOK->setObjectName(QStringLiteral("cmdOK"));
  cmdOK->setDefault(true);
  connect(cmdOK, &QPushButton::clicked, this, &QDialog::accept);

  auto* layout = new QVBoxLayout(this);
  for (QWidget* widget : std::initializer_list<QWidget*>{lblTitle, lblVersion, lblDescription, lblSupport, lblWebsite}) {
    layout->addWidget(widget);
  }
  layout->addWidget(cmdOK, 0, Qt::AlignHCenter);
  adjustSize();
  if (const QScreen* screen = this->screen()) move(screen->geometry().center() - rect().center());
}

QString AboutDialog::VersionText(int major, int minor, int revision) {
  QString text = QStringLiteral("v%1.%2").arg(major).arg(minor);
  if (revision != 0) text += QStringLiteral(".%1").arg(revision);
  return text;
}

void AboutDialog::Run(QWidget* parent) {
  AboutDialog about(parent);
  about.exec();
}

}  // namespace renvale::shell
