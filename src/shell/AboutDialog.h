#pragma once

#include <QDialog>

class QLabel;
class QPushButton;

namespace renvale::shell {

// The About window `frmAbout`: the program's title and version, what it is
// for, and where to write to or read more.
class AboutDialog : public QDialog {
  Q_OBJECT

 public:
  explicit AboutDialog(QWidget* parent = nullptr);

  // "v" + major.minor, with ".revision" only when the revision is not 0.
  static QString VersionText(int major, int minor, int revision);

  // Shows the window modally over `parent`.
  static void Run(QWidget* parent);

  QLabel* lblTitle = nullptr;
  QLabel* lblVersion = nullptr;
  QLabel* lblDescription = nullptr;
  QLabel* lblSupport = nullptr;
  QLabel* lblWebsite = nullptr;
  QPushButton* cmdOK = nullptr;
};

}  // namespace renvale::shell
