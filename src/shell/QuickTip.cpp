#include "shell/QuickTip.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QStyle>
#include <QTextEdit>
#include <QVBoxLayout>

#include "shell/QuickTipRules.h"
#include "shell/QuickTipTexts.h"

namespace renvale::shell {

QuickTip::QuickTip(QuickTipRules& rules, QWidget* parent) : QDialog(parent), rules_(rules) {
  setObjectName(QStringLiteral("QuickTip"));
  setWindowTitle(texts::kQuickTipCaption);
  setAccessibleName(texts::kQuickTipCaption);
  setModal(true);
  BuildControls();
  TipText->setPlainText(QuickTipRules::TipText(rules_.CurrentTipNumber()));
  adjustSize();
  if (const QScreen* screen = this->screen()) move(screen->availableGeometry().center() - rect().center());
}

void QuickTip::BuildControls() {
  Image1 = new QLabel(this);
  Image1->setObjectName(QStringLiteral("Image1"));
  Image1->setAccessibleName(texts::kTipIconName);
  const int side = style()->pixelMetric(QStyle::PM_MessageBoxIconSize, nullptr, this);
  Image1->setPixmap(style()->standardIcon(QStyle::SP_MessageBoxInformation, nullptr, this).pixmap(side, side));
  Image1->setAlignment(Qt::AlignTop);

  TipText = new QTextEdit(this);
  TipText->setObjectName(QStringLiteral("TipText"));
  TipText->setAccessibleName(texts::kQuickTipCaption);
  TipText->setReadOnly(true);
  TipText->setPlainText(texts::kQuickTipDesignText);
  TipText->setMinimumSize(480, 330);

  NoMoreTip = new QCheckBox(texts::kNoMoreTip, this);
  NoMoreTip->setObjectName(QStringLiteral("NoMoreTip"));
  TipsOFF = new QCheckBox(texts::kTipsOff, this);
  TipsOFF->setObjectName(QStringLiteral("TipsOFF"));
  Command1 = new QPushButton(texts::kQuickTipOk, this);
  Command1->setObjectName(QStringLiteral("Command1"));
  Command1->setDefault(true);

  auto* top = new QHBoxLayout;
  top->addWidget(Image1);
  top->addWidget(TipText, 1);
  auto* boxes = new QVBoxLayout;
  boxes->addWidget(NoMoreTip);
  boxes->addWidget(TipsOFF);
  auto* bottom = new QHBoxLayout;
  bottom->addLayout(boxes, 1);
  bottom->addWidget(Command1, 0, Qt::AlignBottom);
  auto* layout = new QVBoxLayout(this);
  layout->addLayout(top, 1);
  layout->addLayout(bottom);

  connect(TipsOFF, &QCheckBox::toggled, this, [this](bool checked) { rules_.TipsOffToggled(checked); });
  connect(Command1, &QPushButton::clicked, this, &QDialog::accept);
  Command1->setFocus();
}

// OK, Escape and the title bar's close button all end here, so the boxes
// count however the person leaves, and the next tip is never locked out.
void QuickTip::done(int result) {
  if (!closed_) {
    closed_ = true;
    rules_.Close(NoMoreTip->isChecked(), TipsOFF->isChecked());
  }
  QDialog::done(result);
}

}  // namespace renvale::shell
