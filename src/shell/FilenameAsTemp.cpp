#include "shell/FilenameAsTemp.h"

#include <QLineEdit>
#include <QMenu>
#include <QPushButton>

#include "core/ButtonCaptions.h"
#include "core/CoreTexts.h"
#include "core/FileNameRules.h"
#include "platform/MessagePort.h"
#include "shell/ButtonTexts.h"
#include "shell/MainWindowUi.h"
#include "shell/QuickTipOffer.h"

namespace renvale::shell {
namespace {

constexpr int kTempFromFilenameTip = 9;

}  // namespace

FilenameAsTemp::FilenameAsTemp(MainWindowUi& ui, const core::RenameSession& session,
                               platform::MessagePort& messages, QuickTipOffer& tips, QObject* parent)
    : QObject(parent), ui_(ui), session_(session), messages_(messages), tips_(tips) {
  setObjectName(QStringLiteral("FilenameAsTemp"));
  tempo_ = new QMenu(ui_.Command10);
  tempo_->setObjectName(QStringLiteral("tempo"));
  tempo_->setAccessibleName(ui_.Command10->accessibleName());
  for (int k = 0; k < static_cast<int>(std::size(texts::kTempMenuEntries)); ++k) {
    QAction* action = tempo_->addAction(texts::kTempMenuEntries[k]);
    connect(action, &QAction::triggered, this, [this, k] { StoreInTemp(k); });
  }
  tempo_->addAction(core::texts::kMenuCancel);
  connect(ui_.Command10, &QPushButton::clicked, this, [this] {
    if (QMenu* menu = PrepareMenu()) menu->exec(ui_.Command10->mapToGlobal(QPoint(0, ui_.Command10->height())));
  });
  ui_.Command10->setEnabled(true);
}

QMenu* FilenameAsTemp::PrepareMenu() {
  tips_.ShowQuickTip(kTempFromFilenameTip);
  const QString name = ui_.Text1->text();
  if (name.isEmpty()) {
    messages_.Notify(core::texts::kNoTempFilename);
    return nullptr;
  }
  if (core::HasInvalidFilenameChars(name)) {
    messages_.Notify(core::texts::kInvalidFilenameChars);
    return nullptr;
  }
  return tempo_;
}

void FilenameAsTemp::StoreInTemp(int k) {
  const QString text = core::TempTextFromFilename(ui_.Text1->text(), session_.SelectedExt);
  ui_.Command9[static_cast<size_t>(k)]->setText(core::EscapeCaption(text));
}

}  // namespace renvale::shell
