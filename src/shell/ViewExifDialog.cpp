#include "shell/ViewExifDialog.h"

#include <QGridLayout>
#include <QLabel>
#include <QTextBlockFormat>
#include <QTextCursor>
#include <QTextEdit>
#include <QPushButton>
#include <QScreen>
#include <QShowEvent>

#include "metadata/FileReport.h"
#include "metadata/MetadataTexts.h"
#include "platform/MessagePort.h"

namespace renvale::shell {
namespace {

using namespace metadata::texts;

constexpr int kWidth = 760;
constexpr int kHeight = 470;

constexpr int kParagraphGap = 3;

QTextEdit* ReportBox(QWidget* parent, const char* objectName, const QString& caption) {
  auto* box = new QTextEdit(parent);
  box->setObjectName(QString::fromLatin1(objectName));
  box->setAccessibleName(caption);
  box->setReadOnly(true);
  box->setAcceptRichText(false);  // a file name must never be taken for markup
  return box;
}

// Shows `text` as plain text; a small gap after each line keeps the long
// explanations, which wrap, apart from each other.
void ShowPlain(QTextEdit* box, QString text) {
  // The report joins its general lines with CR LF; a text box wants LF only.
  box->setPlainText(text.replace(QStringLiteral("\r\n"), QStringLiteral("\n")));
  QTextCursor cursor(box->document());
  cursor.select(QTextCursor::Document);
  QTextBlockFormat format;
  format.setBottomMargin(kParagraphGap);
  cursor.mergeBlockFormat(format);
}

QLabel* Caption(QWidget* parent, const QString& text, QWidget* buddy) {
  auto* label = new QLabel(text, parent);
  label->setAccessibleName(text);
  label->setBuddy(buddy);
  return label;
}


}  // namespace

ViewExifDialog::ViewExifDialog(QWidget* parent) : QDialog(parent) {
  setObjectName(QStringLiteral("frmViewEXIF"));
  setWindowTitle(kReportCaption);
  setAccessibleName(kReportCaption);
  setModal(true);
  exifText_ = ReportBox(this, "EXIFText", kReportExifLabel);
  genInfo_ = ReportBox(this, "GenInfo", kReportGeneralLabel);
  auto* close = new QPushButton(kReportClose, this);
  close->setObjectName(QStringLiteral("Command1"));
  close->setAccessibleName(kReportClose);
  close->setDefault(true);
  connect(close, &QPushButton::clicked, this, &QDialog::accept);
  auto* note = new QLabel(kReportNote, this);
  note->setObjectName(QStringLiteral("Label3"));
  note->setAccessibleName(kReportNote);
  note->setWordWrap(true);

  auto* grid = new QGridLayout(this);
  grid->addWidget(Caption(this, kReportExifLabel, exifText_), 0, 0);
  grid->addWidget(exifText_, 1, 0, 3, 1);
  grid->addWidget(Caption(this, kReportGeneralLabel, genInfo_), 0, 1);
  grid->addWidget(genInfo_, 1, 1);
  grid->addWidget(note, 2, 1);
  grid->addWidget(close, 3, 1, Qt::AlignRight | Qt::AlignBottom);
  grid->setColumnStretch(0, 3);
  grid->setColumnStretch(1, 2);
  grid->setRowStretch(1, 1);
  resize(kWidth, kHeight);
}

void ViewExifDialog::SetTexts(const metadata::FileReportTexts& texts) {
  ShowPlain(exifText_, texts.exif);
  ShowPlain(genInfo_, texts.general);
}

QString ViewExifDialog::ExifText() const { return exifText_->toPlainText(); }
QString ViewExifDialog::GeneralText() const { return genInfo_->toPlainText(); }

void ViewExifDialog::showEvent(QShowEvent* event) {
  if (!centred_) CentreOnScreen();
  centred_ = true;
  QDialog::showEvent(event);
}

void ViewExifDialog::CentreOnScreen() {
  const QScreen* where = screen();
  if (where == nullptr) return;
  const QRect area = where->geometry();
  move(area.x() + (area.width() - width()) / 2, area.y() + (area.height() - height()) / 2);
}

void ViewExifDialog::ShowFileReport(QWidget* parent, platform::FileSystem& fs,
                                    platform::MessagePort& messages, const QByteArray& folder,
                                    const QByteArray& rawName) {
  const metadata::FileReportTexts texts =
      metadata::BuildFileReport(fs, messages, folder, rawName);
  ViewExifDialog dialog(parent);
  dialog.SetTexts(texts);
  dialog.exec();
}

void ViewExifDialog::RunViewCommand(QWidget* parent, platform::FileSystem& fs,
                                    platform::MessagePort& messages, const QByteArray& folder,
                                    const QByteArray& selectedRawName) {
  if (selectedRawName.isEmpty()) {
    messages.Notify(kSelectFileFirst);
    return;
  }
  ShowFileReport(parent, fs, messages, folder, selectedRawName);
}

}  // namespace renvale::shell
