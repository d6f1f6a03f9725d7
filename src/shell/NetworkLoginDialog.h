#pragma once

#include <QDialog>

#include "platform/NetworkShares.h"

class QCheckBox;
class QLineEdit;

namespace renvale::shell {

// The user name, domain and password a server asks for while a share is
// being mapped; only the fields the server needs are shown.
class NetworkLoginDialog : public QDialog {
  Q_OBJECT

 public:
  NetworkLoginDialog(const platform::LoginRequest& request, QWidget* parent);

  // Asks modally; false when the person cancels.
  static bool Ask(const platform::LoginRequest& request, platform::LoginAnswer* answer, QWidget* parent);

  platform::LoginAnswer Answer() const;

 private:
  QLineEdit* user_ = nullptr;
  QLineEdit* domain_ = nullptr;
  QLineEdit* password_ = nullptr;
  QCheckBox* anonymous_ = nullptr;
};

}  // namespace renvale::shell
