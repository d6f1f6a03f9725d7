#include "shell/ButtonEditor.h"

#include <QContextMenuEvent>
#include <QGroupBox>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPushButton>

#include "core/ButtonCaptions.h"
#include "core/CoreTexts.h"
#include "core/FileNameRules.h"
#include "platform/MessagePort.h"
#include "shell/MainWindowUi.h"

namespace renvale::shell {
namespace {

constexpr int kNoButton = -1;

bool OpensEditor(const QEvent* event) {
  if (event->type() == QEvent::MouseButtonRelease) {
    return static_cast<const QMouseEvent*>(event)->button() == Qt::RightButton;
  }
  // The menu key does the same for those who work from the keyboard.
  return event->type() == QEvent::ContextMenu &&
         static_cast<const QContextMenuEvent*>(event)->reason() == QContextMenuEvent::Keyboard;
}

}  // namespace

ButtonEditor::ButtonEditor(MainWindowUi& ui, core::SettingsRecord& settings, platform::MessagePort& messages,
                           QObject* parent)
    : QObject(parent), ui_(ui), settings_(settings), messages_(messages) {
  setObjectName(QStringLiteral("ButtonEditor"));
  for (QPushButton* button : ui_.Command1) button->installEventFilter(this);
  for (QPushButton* button : ui_.Command9) button->installEventFilter(this);
  ui_.Text3->installEventFilter(this);
  connect(ui_.Command3, &QPushButton::clicked, this, &ButtonEditor::Store);
}

void ButtonEditor::Open(int editIndex) {
  QPushButton* button = ButtonFor(editIndex);
  if (button == nullptr) return;
  editButtonIndex_ = static_cast<qint16>(editIndex);
  ui_.namebutton->setTitle(core::EditorPrompt(editIndex));
  // The box shows no caption of its own: the frame's prompt names it.
  ui_.Text3->setAccessibleName(ui_.namebutton->title());
  ui_.Text3->setText(core::UnescapeCaption(button->text()));
  ui_.namebutton->show();
  ui_.Text3->setSelection(0, static_cast<int>(ui_.Text3->text().size()));
  ui_.Text3->setFocus();
}

void ButtonEditor::Store() {
  const QString text = ui_.Text3->text();
  if (core::HasInvalidFilenameChars(text)) {
    messages_.Notify(core::texts::kInvalidFilenameChars);
    return;
  }
  QPushButton* button = ButtonFor(editButtonIndex_);
  if (button == nullptr) return;
  const QString caption = core::EscapeCaption(text);
  button->setText(caption);
  if (!core::IsTempEditIndex(editButtonIndex_)) {
    settings_.customCaptions[static_cast<size_t>(editButtonIndex_ - 1)] = caption;
  }
  ui_.namebutton->hide();
}

QPushButton* ButtonEditor::ButtonFor(int editIndex) const {
  if (core::IsTempEditIndex(editIndex)) {
    const int k = editIndex - core::kFirstTempEditIndex;
    return k < static_cast<int>(ui_.Command9.size()) ? ui_.Command9[static_cast<size_t>(k)] : nullptr;
  }
  const bool custom = editIndex >= 1 && editIndex <= static_cast<int>(ui_.Command1.size());
  return custom ? ui_.Command1[static_cast<size_t>(editIndex - 1)] : nullptr;
}

int ButtonEditor::EditIndexOf(const QObject* button) const {
  for (size_t i = 0; i < ui_.Command1.size(); ++i) {
    if (ui_.Command1[i] == button) return core::CustomEditIndex(static_cast<int>(i) + 1);
  }
  for (size_t k = 0; k < ui_.Command9.size(); ++k) {
    if (ui_.Command9[k] == button) return core::TempEditIndex(static_cast<int>(k));
  }
  return kNoButton;
}

bool ButtonEditor::eventFilter(QObject* watched, QEvent* event) {
  if (watched == ui_.Text3) {
    if (event->type() != QEvent::MouseButtonDblClick) return false;
    ui_.Text3->clear();
    return true;
  }
  if (!OpensEditor(event)) return false;
  const int editIndex = EditIndexOf(watched);
  if (editIndex == kNoButton) return false;
  Open(editIndex);
  return true;
}

}  // namespace renvale::shell
