#pragma once

#include <QObject>

#include "core/RenameSession.h"

class QMenu;

namespace renvale::platform {
class MessagePort;
}

namespace renvale::shell {

class QuickTipOffer;
struct MainWindowUi;

// "Filename as Temp+" (`Command10`): keeps the name being composed on one of
// the three temp buttons, chosen from the pop-up `tempo`, without the
// selected file's extension.
class FilenameAsTemp : public QObject {
  Q_OBJECT

 public:
  FilenameAsTemp(MainWindowUi& ui, const core::RenameSession& session, platform::MessagePort& messages,
                 QuickTipOffer& tips, QObject* parent);

  // The pop-up as the button shows it, after the checks that come first;
  // nullptr when a message stopped it.
  QMenu* PrepareMenu();
  // Temp button k (0..2) takes the new name.
  void StoreInTemp(int k);

 private:
  MainWindowUi& ui_;
  const core::RenameSession& session_;
  platform::MessagePort& messages_;
  QuickTipOffer& tips_;
  QMenu* tempo_ = nullptr;
};

}  // namespace renvale::shell
