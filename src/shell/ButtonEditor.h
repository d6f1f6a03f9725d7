#pragma once

#include <QObject>

#include "core/SettingsRecord.h"

class QPushButton;

namespace renvale::platform {
class MessagePort;
}

namespace renvale::shell {

struct MainWindowUi;

// The editor of the custom and temp button texts: a right-click on a button
// opens the frame `namebutton` over its plain text, "OK" (`Command3`) stores
// the text back in its escaped form. Custom captions go to the settings
// record too, so what is saved at shutdown is what the buttons show.
class ButtonEditor : public QObject {
  Q_OBJECT

 public:
  ButtonEditor(MainWindowUi& ui, core::SettingsRecord& settings, platform::MessagePort& messages,
               QObject* parent);

  // Opens the editor for custom button n (index n) or temp button k
  // (index 20 + k).
  void Open(int editIndex);
  // "OK": refuses a text a file name could not hold, else stores it and
  // closes the editor.
  void Store();
  // Meaningful only while the editor is open.
  int EditButtonIndex() const { return editButtonIndex_; }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QPushButton* ButtonFor(int editIndex) const;
  int EditIndexOf(const QObject* button) const;

  MainWindowUi& ui_;
  core::SettingsRecord& settings_;
  platform::MessagePort& messages_;
  qint16 editButtonIndex_ = 0;
};

}  // namespace renvale::shell
