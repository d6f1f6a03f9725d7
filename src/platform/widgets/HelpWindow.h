#pragma once

#include <QUrl>
#include <QWidget>

#include "platform/HelpTopics.h"

class QAbstractButton;
class QHBoxLayout;
class QSplitter;
class QLabel;
class QLineEdit;
class QListWidget;
class QTextBrowser;

namespace renvale::platform {

// The program's help: a contents list beside the page, back and forward
// through the pages seen, and a search within the page shown. One per
// window that asks for help, so that a modal dialog's help stays usable
// while the dialog is open.
class HelpWindow : public QWidget {
  Q_OBJECT

 public:
  explicit HelpWindow(QWidget* owner);

  void ShowTopic(HelpTopic topic);
  // The page shown, e.g. "qrc:/help/index.html".
  QUrl Page() const;
  QTextBrowser* Browser() const { return browser_; }

 private:
  QHBoxLayout* BuildBar();
  QSplitter* BuildPanes();
  void OnPageChanged(const QUrl& page);
  void FindNext();

  QListWidget* contents_ = nullptr;
  QTextBrowser* browser_ = nullptr;
  QLineEdit* findBox_ = nullptr;
  QLabel* notFound_ = nullptr;
};

// Opens the help window of `owner`'s window at `topic` and brings it up.
void ShowHelp(QWidget* owner, HelpTopic topic);

// Makes `helpButton` (may be null) and F1 anywhere in `window` open `topic`.
void AttachHelp(QWidget* window, QAbstractButton* helpButton, HelpTopic topic);

}  // namespace renvale::platform
