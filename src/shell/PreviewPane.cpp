#include "shell/PreviewPane.h"

#include <QAction>
#include <QEvent>
#include <QLabel>
#include <QMenu>
#include <QPixmap>
#include <QPushButton>

#include "platform/FileSystem.h"
#include "platform/MessagePort.h"
#include "platform/VideoDecoding.h"
#include "shell/MediaPane.h"
#include "shell/MainWindowUi.h"
#include "shell/PreviewKind.h"
#include "shell/ShellTexts.h"

namespace renvale::shell {

PreviewPane::PreviewPane(MainWindowUi& ui, core::RenameSession& session, const core::SettingsRecord& settings,
                         platform::FileSystem& fs, platform::MessagePort& messages, QObject* parent)
    : QObject(parent), ui_(ui), session_(session), settings_(settings), fs_(fs), messages_(messages) {
  worker_ = new QObject;
  worker_->moveToThread(&thread_);
  connect(&thread_, &QThread::finished, worker_, &QObject::deleteLater);
  thread_.setObjectName(QStringLiteral("PreviewDecoder"));
  thread_.start(QThread::LowPriority);
  ui_.Gvbox1->installEventFilter(this);
  connect(ui_.ShPrev, &QPushButton::clicked, this, &PreviewPane::ShowSelected);
  connect(ui_.UnSupported, &QPushButton::clicked, this, &PreviewPane::OpenSelectedExternally);
  connect(ui_.RotIP, &QAction::triggered, this, &PreviewPane::Rotate);
  extprev_ = new QMenu(ui_.Gvbox1);
  extprev_->setObjectName(QStringLiteral("extprev"));
  extprev_->addAction(texts::kOpenWithExternalViewer, this, &PreviewPane::OpenSelectedExternally);
  ui_.Gvbox1->setContextMenuPolicy(Qt::CustomContextMenu);
  connect(ui_.Gvbox1, &QWidget::customContextMenuRequested, this,
          [this](const QPoint& at) { extprev_->popup(ui_.Gvbox1->mapToGlobal(at)); });
  ui_.ShPrev->setEnabled(true);
  ui_.UnSupported->setEnabled(true);
  ui_.RotIP->setEnabled(true);
}

PreviewPane::~PreviewPane() {
  {
    std::lock_guard lock(mutex_);
    pending_.reset();
  }
  thread_.quit();
  thread_.wait();
}

void PreviewPane::ShowPreview(const platform::FileName& name) {
  const platform::FileName file = name.raw.isEmpty() ? session_.SelectedFileName : name;
  if (file.raw.isEmpty()) return;
  // One arrow key reports a new current file and a new selection; the
  // second report finds the file on show or on its way and only puts its
  // caption back, instead of decoding it a second time.
  if (!session_.PreviewedPath.isEmpty() && session_.PreviewedPath == platform::JoinPath(session_.CurrentFolder, file.raw)) {
    RestoreCaption();
    return;
  }
  ReleasePreview();
  const QString display = file.Display();
  const PreviewKind kind = PreviewKindFor(display, settings_.playQuickTime, settings_.playRealMedia);
  if (kind == PreviewKind::Notice) {
    ui_.previewCaption->setText(texts::kPreviewUnavailable);
    return;
  }
  if (kind == PreviewKind::Media) {
    ShowMedia(file);
    return;
  }
  session_.PreviewedPath = platform::JoinPath(session_.CurrentFolder, file.raw);
  currentName_ = display;
  ShowCaption(texts::kLoadingImage);
  Post({currentId_, session_.PreviewedPath, Area(), Fill()});
}

void PreviewPane::ShowMedia(const platform::FileName& file) {
  session_.PreviewedPath = platform::JoinPath(session_.CurrentFolder, file.raw);
  Media().Show(session_.PreviewedPath, file.Display());
}

// Made on first use: a folder of pictures never starts the media framework,
// and the video work-around must be chosen before it starts.
MediaPane& PreviewPane::Media() {
  if (media_ == nullptr) {
    platform::VideoDecoding::Choose(settings_.fixDirectShow);
    media_ = new MediaPane(ui_, this);
    connect(media_, &MediaPane::Unplayable, this, [this] { session_.PreviewedPath.clear(); });
  }
  return *media_;
}

void PreviewPane::ReleasePreview() {
  if (media_ != nullptr) media_->Release();
  ++currentId_;
  {
    std::lock_guard lock(mutex_);
    pending_.reset();
  }
  image_ = QImage();
  ui_.Gvbox1->clear();
  session_.PreviewedPath.clear();
}

// The button reads the file afresh even when it is on show.
void PreviewPane::ShowSelected() {
  if (session_.SelectedCount == 0) {
    messages_.Beep();
    messages_.Notify(texts::kNoFileSelectedToPreview);
    return;
  }
  ReleasePreview();
  ShowPreview();
}

void PreviewPane::ShowCaption(const QString& text) {
  caption_ = text;
  ui_.previewCaption->setText(text);
}

void PreviewPane::RestoreCaption() {
  if (media_ != nullptr && media_->Player().State() != platform::MediaState::Empty) {
    media_->RestoreCaption();
  } else {
    ui_.previewCaption->setText(caption_);
  }
}

void PreviewPane::OpenSelectedExternally() {
  if (session_.SelectedCount == 0) {
    messages_.Beep();
    messages_.Notify(texts::kNoFileSelectedToPreview);
    return;
  }
  const QByteArray path = platform::JoinPath(session_.CurrentFolder, session_.SelectedFileName.raw);
  // Other failures stay silent: the desktop has usually said why already.
  if (opener_(path) == platform::DefaultApplication::Result::NoApplication) {
    messages_.Notify(texts::kNoExternalApplication);
  }
}

void PreviewPane::Rotate() {
  if (image_.isNull()) return;
  image_ = PreviewDecoder::Turned(image_, metadata::PreviewTurn::QuarterClockwise);
  Render();
}

// Style 0, the large view, fills the area whatever the proportions; style
// 1, the thumbnail view, keeps them.
void PreviewPane::Render() {
  if (image_.isNull()) {
    ui_.Gvbox1->clear();
    return;
  }
  PutOnScreen(PreviewDecoder::ForArea(image_, Area(), Fill()));
}

QSize PreviewPane::Area() const { return ui_.Gvbox1->size() * ui_.Gvbox1->devicePixelRatioF(); }
bool PreviewPane::Fill() const { return settings_.previewStyle != 1; }

void PreviewPane::PutOnScreen(QImage&& shown) {
  QPixmap pixmap = QPixmap::fromImage(std::move(shown));
  pixmap.setDevicePixelRatio(ui_.Gvbox1->devicePixelRatioF());
  ui_.Gvbox1->setPixmap(pixmap);
}

bool PreviewPane::eventFilter(QObject* watched, QEvent* event) {
  if (watched == ui_.Gvbox1 && event->type() == QEvent::Resize && !image_.isNull()) Render();
  return false;
}

// A request replaces any that has not started; the thread is woken only
// when it is not already working through requests.
void PreviewPane::Post(const Request& request) {
  if (!fs_.ReadableFromAnyThread()) {
    TakeDecoded(request, PreviewDecoder::Decode(fs_, request.path, request.area, request.fill));
    return;
  }
  std::lock_guard lock(mutex_);
  pending_ = request;
  if (posted_) return;
  posted_ = true;
  QMetaObject::invokeMethod(worker_, [this] { WorkOnPending(); }, Qt::QueuedConnection);
}

void PreviewPane::WorkOnPending() {
  for (;;) {
    Request request;
    {
      std::lock_guard lock(mutex_);
      if (!pending_) {
        posted_ = false;
        return;
      }
      request = *pending_;
      pending_.reset();
    }
    DecodedPreview decoded = PreviewDecoder::Decode(fs_, request.path, request.area, request.fill);
    QMetaObject::invokeMethod(
        this, [this, request, decoded = std::move(decoded)]() mutable { TakeDecoded(request, std::move(decoded)); },
        Qt::QueuedConnection);
  }
}

void PreviewPane::TakeDecoded(const Request& request, DecodedPreview&& decoded) {
  if (request.id != currentId_) return;  // a newer selection or a release came first
  if (!decoded.exifError.isEmpty()) messages_.Notify(decoded.exifError);
  if (decoded.image.isNull()) {
    session_.PreviewedPath.clear();
    ui_.previewCaption->setText(texts::kPreviewUnavailable);
    return;
  }
  image_ = std::move(decoded.image);
  ShowCaption(texts::PictureCaption(currentName_, decoded.ownSize.width(), decoded.ownSize.height()));
  // The area may have changed its size or style while the picture was decoded.
  if (request.area == Area() && request.fill == Fill()) {
    PutOnScreen(std::move(decoded.shown));
  } else {
    Render();
  }
  emit PictureShown();
}

}  // namespace renvale::shell
