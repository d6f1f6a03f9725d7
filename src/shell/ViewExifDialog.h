#pragma once

#include <QByteArray>
#include <QDialog>

class QTextEdit;
class QShowEvent;

namespace renvale::platform {
class FileSystem;
class MessagePort;
}  // namespace renvale::platform

namespace renvale::metadata {
struct FileReportTexts;
}

namespace renvale::shell {

// The "General File / EXIF Data" window (frmViewEXIF): shows the EXIF report
// and the general report of one file, built beforehand by FileReport.
class ViewExifDialog : public QDialog {
  Q_OBJECT

 public:
  explicit ViewExifDialog(QWidget* parent = nullptr);

  void SetTexts(const metadata::FileReportTexts& texts);
  QString ExifText() const;
  QString GeneralText() const;

  // Builds the report of `folder` + `rawName` and shows the window modally.
  static void ShowFileReport(QWidget* parent, platform::FileSystem& fs,
                             platform::MessagePort& messages, const QByteArray& folder,
                             const QByteArray& rawName);
  // The menu command: with no file selected (`selectedRawName` empty) it
  // only says "Please select a file first.".
  static void RunViewCommand(QWidget* parent, platform::FileSystem& fs,
                             platform::MessagePort& messages, const QByteArray& folder,
                             const QByteArray& selectedRawName);

 protected:
  void showEvent(QShowEvent* event) override;

 private:
  void CentreOnScreen();

  QTextEdit* exifText_ = nullptr;
  QTextEdit* genInfo_ = nullptr;
  bool centred_ = false;
};

}  // namespace renvale::shell
