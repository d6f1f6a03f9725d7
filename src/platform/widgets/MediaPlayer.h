#pragma once

#include <QByteArray>
#include <QObject>
#include <QPointer>
#include <QSize>
#include <QString>

#include "platform/UniqueFd.h"

class QAudioOutput;
class QMediaPlayer;
class QVideoWidget;
class QWidget;

namespace renvale::platform {

// Where a player is with its file. Empty: no file; Loading: opened, not yet
// read far enough to know its length; Failed: the file cannot be played.
enum class MediaState { Empty, Loading, Stopped, Playing, Paused, Failed };

// Sound and video through the system's media framework, with the picture in
// a widget of its own. Everything is asynchronous: a call returns at once
// and the signals tell what became of it, so a file the framework chokes on
// never blocks the window.
class MediaPlayer : public QObject {
  Q_OBJECT

 public:
  // The video widget is made a child of `videoParent` and starts hidden.
  explicit MediaPlayer(QWidget* videoParent, QObject* parent = nullptr);
  ~MediaPlayer() override;

  // Opens `path` (raw bytes) ready to play, without starting it. False,
  // with nothing opened, when it is not a regular file: the framework would
  // wait forever on a named pipe with no writer.
  bool Load(const QByteArray& path);
  // Stops and closes the file: afterwards nothing of it is held open.
  void Release();

  void Play();
  void Pause();
  void Stop();
  void SetPosition(qint64 ms);
  void SetVolume(int percent);

  MediaState State() const { return state_; }
  qint64 Position() const;
  qint64 Duration() const;
  bool Seekable() const;
  bool HasAudio() const;
  bool HasVideo() const;
  QSize VideoSize() const;
  double FrameRate() const;  // 0 when the file does not say
  QString ErrorText() const { return error_; }
  QWidget* VideoWidget() const;

 signals:
  void StateChanged(platform::MediaState state);
  void PositionChanged(qint64 ms);
  void DurationChanged(qint64 ms);
  // What is known of the file grew: seekable, sound, video, its size.
  void FactsChanged();

 private:
  void SetState(MediaState state);
  void Park();
  void FollowStatus();
  void FollowPlayback();

  QMediaPlayer* player_ = nullptr;
  QAudioOutput* audio_ = nullptr;
  QPointer<QVideoWidget> video_;  // the window may delete it first
  UniqueFd held_;  // a file opened for the framework, see Load
  MediaState state_ = MediaState::Empty;
  bool parked_ = false;  // paused at the start, standing for stopped
  QString error_;
};

}  // namespace renvale::platform
