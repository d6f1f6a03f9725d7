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
  ui_.previewCaption->setText(texts::kLoadingImage);
  const QSize area = ui_.Gvbox1->size() * ui_.Gvbox1->devicePixelRatioF();
  Post({currentId_, session_.PreviewedPath, area, settings_.previewStyle != 1});
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

void PreviewPane::ShowSelected() {
  if (session_.SelectedCount == 0) {
    messages_.Beep();
    messages_.Notify(texts::kNoFileSelectedToPreview);
    return;
  }
  ShowPreview();
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
  const qreal ratio = ui_.Gvbox1->devicePixelRatioF();
  const QSize area = (ui_.Gvbox1->size() * ratio).expandedTo(QSize(1, 1));
  const Qt::AspectRatioMode mode = settings_.previewStyle == 1 ? Qt::KeepAspectRatio : Qt::IgnoreAspectRatio;
  QPixmap pixmap = QPixmap::fromImage(image_.scaled(area, mode, Qt::SmoothTransformation));
  pixmap.setDevicePixelRatio(ratio);
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
    TakeDecoded(request.id, PreviewDecoder::Decode(fs_, request.path, request.area, request.fill));
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
    const DecodedPreview decoded = PreviewDecoder::Decode(fs_, request.path, request.area, request.fill);
    QMetaObject::invokeMethod(
        this, [this, id = request.id, decoded] { TakeDecoded(id, decoded); }, Qt::QueuedConnection);
  }
}

void PreviewPane::TakeDecoded(quint64 id, const DecodedPreview& decoded) {
  if (id != currentId_) return;  // a newer selection or a release came first
  if (!decoded.exifError.isEmpty()) messages_.Notify(decoded.exifError);
  if (decoded.image.isNull()) {
    session_.PreviewedPath.clear();
    ui_.previewCaption->setText(texts::kPreviewUnavailable);
    return;
  }
  image_ = decoded.image;
  ui_.previewCaption->setText(texts::PictureCaption(currentName_, decoded.ownSize.width(), decoded.ownSize.height()));
  Render();
  emit PictureShown();
}

}  // namespace renvale::shell
