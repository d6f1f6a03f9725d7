#pragma once

#include <QByteArray>
#include <QObject>
#include <QString>
#include <QTimer>

#include "platform/widgets/MediaPlayer.h"
#include "shell/MediaControlRules.h"

namespace renvale::shell {

struct MainWindowUi;

// The media player of the preview area: the video in place of the
// picture, the buttons, the volume and position sliders and the times.
class MediaPane : public QObject {
  Q_OBJECT

 public:
  MediaPane(MainWindowUi& ui, QObject* parent);

  // Opens the file at `path`, shown as `name`, ready to play.
  void Show(const QByteArray& path, const QString& name);
  // Closes the file and hides the player.
  void Release();
  // Puts back the caption of the file on show after something else wrote
  // over it.
  void RestoreCaption() { ShowCaption(caption_); }

  platform::MediaPlayer& Player() { return *player_; }
  // How long a file may take to open before it counts as unplayable.
  void SetLoadTimeout(int ms) { loadTimeout_.setInterval(ms); }

 signals:
  // The file is open and its length known.
  void Ready();
  // The file cannot be played; the caption says why and the player has
  // let go of it.
  void Unplayable();

 private:
  void OnState(platform::MediaState state);
  void OnFacts();
  void OnLoadTimeout();
  void Fail(const QString& reason);
  void Step(int direction);
  void ShowCaption(const QString& text);
  void ShowControls();
  void ShowTimes();
  MediaFacts Facts() const;

  MainWindowUi& ui_;
  platform::MediaPlayer* player_ = nullptr;
  QTimer loadTimeout_;
  QString name_;
  QString caption_;
  bool ready_ = false;
  bool showingPosition_ = false;  // the slider moves because the player did
};

}  // namespace renvale::shell
