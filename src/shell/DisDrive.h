#pragma once

#include <QDialog>
#include <vector>

#include "platform/NetworkShares.h"

class QComboBox;
class QPushButton;

namespace renvale::platform {
class MessagePort;
}  // namespace renvale::platform

namespace renvale::shell {

// "Disconnect Network Drive" (`DisDrive`): the connected network folders by
// local folder and address; the one chosen is disconnected.
class DisDrive : public QDialog {
  Q_OBJECT

 public:
  DisDrive(platform::NetworkShares& shares, platform::MessagePort& messages, QWidget* parent);

  // The modal dialog; true when a share was disconnected.
  static bool Run(platform::NetworkShares& shares, platform::MessagePort& messages, QWidget* parent);

  bool DisconnectedAny() const { return disconnected_; }

 protected:
  void showEvent(QShowEvent* event) override;

 private:
  void FillList();
  void OnDisconnect();

  platform::NetworkShares& shares_;
  platform::MessagePort& messages_;
  std::vector<platform::NetworkMount> mounts_;
  bool disconnected_ = false;
  bool announced_ = false;
  QComboBox* Combo1 = nullptr;
  QPushButton* Command1 = nullptr;
  QPushButton* Command2 = nullptr;
  QPushButton* Command3 = nullptr;
};

}  // namespace renvale::shell
