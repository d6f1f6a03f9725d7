#include "shell/ComposeController.h"

#include <QEvent>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>

#include "core/CoreTexts.h"
#include "core/FileNameRules.h"
#include "platform/MessagePort.h"
#include "shell/MainWindowUi.h"
#include "shell/QuickTipOffer.h"

namespace renvale::shell {
namespace {

constexpr int kExifTip = 2;
constexpr int kOrigFnTip = 3;
constexpr int kInsertTip = 4;
constexpr int kSeriesTip = 5;
constexpr int kCustomTip = 11;
constexpr int kTempTip = 12;

QMenu* NewMenu(QWidget* button, const char* objectName) {
  auto* menu = new QMenu(button);
  menu->setObjectName(QString::fromLatin1(objectName));
  menu->setAccessibleName(button->accessibleName());
  return menu;
}

}  // namespace

ComposeController::ComposeController(MainWindowUi& ui, core::RenameSession& session,
                                     core::SettingsRecord& settings, ComposeServices services,
                                     QObject* parent)
    : QObject(parent),
      ui_(ui),
      session_(session),
      services_(std::move(services)),
      seriesBox_(*ui.Text2),
      values_(session, settings, services_.fs, services_.messages, seriesBox_),
      kept_(*ui.Text1, this) {
  setObjectName(QStringLiteral("ComposeController"));
  BuildExifMenu();
  BuildInsertMenu();
  ConnectControls();
}

void ComposeController::ConnectControls() {
  connect(ui_.OrigFN, &QPushButton::clicked, this, &ComposeController::InsertOrigFilename);
  connect(ui_.Command6, &QPushButton::clicked, this, &ComposeController::InsertSeries);
  connect(ui_.exif, &QPushButton::clicked, this, [this] { ShowBelow(PrepareExifMenu(), ui_.exif); });
  connect(ui_.Command5, &QPushButton::clicked, this, [this] { ShowBelow(PrepareInsertMenu(), ui_.Command5); });
  for (QPushButton* button : ui_.Command1) {
    connect(button, &QPushButton::clicked, this, [this, button] { InsertButtonText(*button, kCustomTip); });
  }
  for (QPushButton* button : ui_.Command9) {
    connect(button, &QPushButton::clicked, this, [this, button] { InsertButtonText(*button, kTempTip); });
  }
  ui_.Text2->installEventFilter(this);
  for (QWidget* widget : {static_cast<QWidget*>(ui_.OrigFN), static_cast<QWidget*>(ui_.exif),
                          static_cast<QWidget*>(ui_.Command5), static_cast<QWidget*>(ui_.Command6),
                          static_cast<QWidget*>(ui_.Text2)}) {
    widget->setEnabled(true);
  }
}

void ComposeController::BuildExifMenu() {
  namespace t = core::texts;
  exifMenu_ = NewMenu(ui_.exif, "exifMenu");
  AddInsertAction(exifMenu_, t::kMenuInsertDate, [this] { return values_.Exif(1); });
  AddInsertAction(exifMenu_, t::kMenuInsertTime, [this] { return values_.Exif(2); });
  AddInsertAction(exifMenu_, t::kMenuInsertDateTime, [this] { return values_.Exif(3); });
  AddInsertAction(exifMenu_, t::kMenuInsertSerial, [this] { return values_.Exif(4); });
  exifMenu_->addSeparator();
  AddInsertAction(exifMenu_, t::kMenuInsertTitle, [this] { return values_.Id3(core::Token::Title); });
  AddInsertAction(exifMenu_, t::kMenuInsertArtist, [this] { return values_.Id3(core::Token::Artist); });
  AddInsertAction(exifMenu_, t::kMenuInsertAlbum, [this] { return values_.Id3(core::Token::Album); });
  AddInsertAction(exifMenu_, t::kMenuInsertTrack, [this] { return values_.Id3(core::Token::Track); });
  exifMenu_->addSeparator();
  QAction* view = exifMenu_->addAction(t::kMenuViewExif);
  view->setEnabled(static_cast<bool>(services_.viewFileInfo));
  connect(view, &QAction::triggered, this, [this] { services_.viewFileInfo(); });
  exifMenu_->addAction(t::kMenuCancel);
}

void ComposeController::BuildInsertMenu() {
  insertMenu_ = NewMenu(ui_.Command5, "insertMenu");
  for (size_t i = 0; i < std::size(core::texts::kCommonWords); ++i) {
    const QString word = core::texts::kCommonWords[i];
    AddInsertAction(insertMenu_, core::texts::kCommonWordCaptions[i], [word] { return word; });
  }
  insertMenu_->addAction(core::texts::kMenuCancel);
}

void ComposeController::AddInsertAction(QMenu* menu, const QString& caption, std::function<QString()> text) {
  QAction* action = menu->addAction(caption);
  connect(action, &QAction::triggered, this, [this, text = std::move(text)] { InsertAtCaret(text()); });
}

void ComposeController::InsertAtCaret(const QString& text) {
  kept_.Restore();
  ui_.Text1->insert(text);
  ui_.Text1->setFocus();
}

bool ComposeController::CheckFileSelected() {
  if (values_.FileSelected()) return true;
  services_.messages.Notify(core::texts::kPleaseSelectFileFirst);
  return false;
}

void ComposeController::InsertOrigFilename() {
  if (!CheckFileSelected()) return;
  services_.tips.ShowQuickTip(kOrigFnTip);
  InsertAtCaret(values_.OrigFilename());
}

// The series number goes in before the extension the box ends with; when
// the caret stood after it, the extension is put back at the end.
void ComposeController::InsertSeries() {
  if (!CheckFileSelected()) return;
  services_.tips.ShowQuickTip(kSeriesTip);
  InsertAtCaret(values_.Series());
  const core::GuardedText guarded = core::GuardExtensionAfterInsert(ui_.Text1->text(), session_.SelectedExt);
  if (guarded.caret) {
    ui_.Text1->setText(guarded.text);
    ui_.Text1->setCursorPosition(static_cast<int>(*guarded.caret));
  }
}

void ComposeController::InsertButtonText(const QPushButton& button, int tipNumber) {
  if (!CheckFileSelected()) return;
  services_.tips.ShowQuickTip(tipNumber);
  InsertAtCaret(values_.Button(button.text()));
}

void ComposeController::ResetSeriesBox() { values_.ResetSeries(); }

QMenu* ComposeController::PrepareExifMenu() {
  if (!CheckFileSelected()) return nullptr;
  services_.tips.ShowQuickTip(kExifTip);
  values_.LoadId3ForSelected();
  return exifMenu_;
}

QMenu* ComposeController::PrepareInsertMenu() {
  if (!CheckFileSelected()) return nullptr;
  services_.tips.ShowQuickTip(kInsertTip);
  return insertMenu_;
}

void ComposeController::ShowBelow(QMenu* menu, QWidget* button) {
  if (menu != nullptr) menu->exec(button->mapToGlobal(QPoint(0, button->height())));
}

bool ComposeController::eventFilter(QObject* watched, QEvent* event) {
  if (watched == ui_.Text2 && event->type() == QEvent::MouseButtonDblClick) {
    ResetSeriesBox();
    return true;
  }
  return false;
}

}  // namespace renvale::shell
