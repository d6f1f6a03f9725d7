#pragma once

#include <QDialog>
#include <functional>

class QLabel;
class QLineEdit;
class QPushButton;

namespace renvale::platform {
class MessagePort;
class NetworkShares;
}  // namespace renvale::platform

namespace renvale::shell {

class QuickTipOffer;

// "Map Network Drive" (`MapDriveL`): a network folder's address, typed,
// pasted or chosen, is connected, and the local folder that reaches it is
// told.
class MapDriveL : public QDialog {
  Q_OBJECT

 public:
  struct Services {
    platform::NetworkShares& shares;
    platform::MessagePort& messages;
    QuickTipOffer& tips;
    // The desktop's folder dialog (parent, title, start folder) -> choice.
    std::function<QString(QWidget*, const QString&, const QString&)> pickFolder;
  };

  MapDriveL(Services services, QWidget* parent);

  // The modal dialog with its quick tip; the local folder of the share
  // mapped, or empty when none was.
  static QByteArray Run(Services services, QWidget* parent);

  const QByteArray& MappedFolder() const { return mapped_; }

 public slots:
  // While a server is being asked, Cancel and Escape give up the attempt;
  // otherwise they close the dialog.
  void reject() override;

 private:
  void OnChoose();
  void OnMap();
  void SetMapping(bool on);

  Services services_;
  QByteArray mapped_;
  bool mapping_ = false;
  QLineEdit* NetFolder = nullptr;
  QPushButton* Command1 = nullptr;
  QPushButton* Command2 = nullptr;
  QPushButton* Command3 = nullptr;
  QPushButton* Command5 = nullptr;
};

}  // namespace renvale::shell
