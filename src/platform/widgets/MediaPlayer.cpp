#include "platform/widgets/MediaPlayer.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <QAudioOutput>
#include <QFile>
#include <QMediaMetaData>
#include <QMediaPlayer>
#include <QUrl>
#include <QVideoSink>
#include <QVideoWidget>

namespace renvale::platform {
namespace {

QUrl FileUrl(const QByteArray& path) { return QUrl::fromEncoded("file://" + QUrl::toPercentEncoding(path, "/")); }

}  // namespace

MediaPlayer::MediaPlayer(QWidget* videoParent, QObject* parent)
    : QObject(parent),
      player_(new QMediaPlayer(this)),
      audio_(new QAudioOutput(this)),
      video_(new QVideoWidget(videoParent)) {
  video_->setObjectName(QStringLiteral("VideoPicture"));
  video_->setAccessibleName(QStringLiteral("Video preview"));
  video_->setMinimumSize(1, 1);
  video_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
  video_->hide();
  player_->setAudioOutput(audio_);
  player_->setVideoOutput(video_.data());
  connect(player_, &QMediaPlayer::mediaStatusChanged, this, &MediaPlayer::FollowStatus);
  connect(player_, &QMediaPlayer::playbackStateChanged, this, &MediaPlayer::FollowPlayback);
  connect(player_, &QMediaPlayer::positionChanged, this, &MediaPlayer::PositionChanged);
  connect(player_, &QMediaPlayer::durationChanged, this, &MediaPlayer::DurationChanged);
  for (auto signal : {&QMediaPlayer::seekableChanged, &QMediaPlayer::hasAudioChanged, &QMediaPlayer::hasVideoChanged}) {
    connect(player_, signal, this, &MediaPlayer::FactsChanged);
  }
  connect(player_, &QMediaPlayer::metaDataChanged, this, &MediaPlayer::FactsChanged);
  // Queued: Qt 6.4 sends this signal holding the sink's lock, which
  // videoSize() takes again.
  connect(video_->videoSink(), &QVideoSink::videoSizeChanged, this, &MediaPlayer::FactsChanged,
          Qt::QueuedConnection);
  connect(player_, &QMediaPlayer::errorOccurred, this, [this](QMediaPlayer::Error, const QString& text) {
    if (state_ == MediaState::Empty || state_ == MediaState::Failed) return;
    error_ = text;
    SetState(MediaState::Failed);
  });
}

MediaPlayer::~MediaPlayer() {
  player_->stop();
  player_->setSource(QUrl());
}

// An address holds text, so a name that is not valid UTF-8 cannot be
// spelled in one. Such a file is opened here and handed over by its
// descriptor's name in /proc, which the framework opens as the same file.
bool MediaPlayer::Load(const QByteArray& path) {
  Release();
  error_.clear();
  struct stat st;
  if (::stat(path.constData(), &st) != 0 || !S_ISREG(st.st_mode)) return false;
  SetState(MediaState::Loading);
  QUrl url = FileUrl(path);
  if (QFile::encodeName(url.toLocalFile()) != path) {
    held_ = UniqueFd(::open(path.constData(), O_RDONLY | O_CLOEXEC));
    url = QUrl::fromLocalFile(QStringLiteral("/proc/self/fd/%1").arg(held_.get()));
  }
  player_->setSource(url);
  return true;
}

// An empty source takes the framework's pipeline down to its null state,
// which closes the file.
void MediaPlayer::Release() {
  parked_ = false;
  player_->stop();
  player_->setSource(QUrl());
  held_ = UniqueFd();
  if (video_) video_->hide();
  SetState(MediaState::Empty);
}

void MediaPlayer::Play() {
  if (state_ != MediaState::Stopped && state_ != MediaState::Paused) return;
  parked_ = false;
  player_->play();
}

void MediaPlayer::Pause() {
  if (state_ == MediaState::Playing) player_->pause();
}

// Stopping parks at the start too, so that a video shows its first frame
// again rather than black.
void MediaPlayer::Stop() {
  if (state_ != MediaState::Playing && state_ != MediaState::Paused) return;
  Park();
  player_->setPosition(0);
  SetState(MediaState::Stopped);
}

// GStreamer reads a file's length (of an MP3, say) and decodes a video's
// first frame only once its pipeline is paused; a stopped or merely loaded
// player shows black and a length of nothing. So a loaded file is paused at
// its start, and that pause reads as stopped.
void MediaPlayer::Park() {
  parked_ = true;
  player_->pause();
}

void MediaPlayer::SetPosition(qint64 ms) { player_->setPosition(ms); }

// The slider's steps are even to the ear, not to the signal's amplitude.
void MediaPlayer::SetVolume(int percent) {
  const float linear = QAudio::convertVolume(static_cast<float>(percent) / 100.0F, QAudio::LogarithmicVolumeScale,
                                             QAudio::LinearVolumeScale);
  audio_->setVolume(linear);
}

qint64 MediaPlayer::Position() const { return player_->position(); }
qint64 MediaPlayer::Duration() const { return player_->duration(); }
bool MediaPlayer::Seekable() const { return player_->isSeekable(); }
bool MediaPlayer::HasAudio() const { return player_->hasAudio(); }
bool MediaPlayer::HasVideo() const { return player_->hasVideo(); }
QWidget* MediaPlayer::VideoWidget() const { return video_; }

// Many files do not state their size; the first frame tells it then.
QSize MediaPlayer::VideoSize() const {
  const QSize stated = player_->metaData().value(QMediaMetaData::Resolution).toSize();
  if (stated.isValid() || !video_) return stated;
  return video_->videoSink()->videoSize();
}

double MediaPlayer::FrameRate() const {
  return player_->metaData().value(QMediaMetaData::VideoFrameRate).toDouble();
}

void MediaPlayer::SetState(MediaState state) {
  if (state == state_) return;
  state_ = state;
  emit StateChanged(state);
}

void MediaPlayer::FollowStatus() {
  if (state_ == MediaState::Empty || state_ == MediaState::Failed) return;
  switch (player_->mediaStatus()) {
    case QMediaPlayer::InvalidMedia:
      if (error_.isEmpty()) error_ = player_->errorString();
      SetState(MediaState::Failed);
      return;
    case QMediaPlayer::LoadedMedia:
    case QMediaPlayer::BufferedMedia:
      if (state_ == MediaState::Loading && player_->playbackState() == QMediaPlayer::StoppedState) Park();
      if (state_ == MediaState::Loading) FollowPlayback();
      return;
    case QMediaPlayer::EndOfMedia:
      if (state_ == MediaState::Loading) FollowPlayback();
      return;
    default:
      return;
  }
}

// Until the file is read far enough the framework's own state says nothing
// about it, and the player stays Loading.
void MediaPlayer::FollowPlayback() {
  if (state_ == MediaState::Empty || state_ == MediaState::Failed) return;
  const QMediaPlayer::MediaStatus status = player_->mediaStatus();
  if (state_ == MediaState::Loading && status != QMediaPlayer::LoadedMedia &&
      status != QMediaPlayer::BufferedMedia && status != QMediaPlayer::EndOfMedia) {
    return;
  }
  switch (player_->playbackState()) {
    case QMediaPlayer::PlayingState:
      SetState(MediaState::Playing);
      return;
    case QMediaPlayer::PausedState:
      SetState(parked_ ? MediaState::Stopped : MediaState::Paused);
      return;
    case QMediaPlayer::StoppedState:
      SetState(MediaState::Stopped);
      return;
  }
}

}  // namespace renvale::platform
