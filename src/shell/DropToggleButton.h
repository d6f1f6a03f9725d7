#pragma once

#include <QList>
#include <QPushButton>
#include <QUrl>

namespace renvale::shell {

// The pane toggle: a button that also takes folders and files dragged from a
// file manager (text/uri-list only; anything else is refused at the door).
class DropToggleButton : public QPushButton {
  Q_OBJECT

 public:
  using QPushButton::QPushButton;

 signals:
  void UrlsDropped(const QList<QUrl>& urls);

 protected:
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dropEvent(QDropEvent* event) override;
};

}  // namespace renvale::shell
