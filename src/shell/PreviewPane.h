#pragma once

#include <QImage>
#include <QObject>
#include <QSize>
#include <QThread>
#include <functional>
#include <mutex>
#include <optional>

class QMenu;

#include "core/RenameSession.h"
#include "core/SettingsRecord.h"
#include "platform/DefaultApplication.h"
#include "shell/PreviewDecoder.h"

namespace renvale::platform {
class FileSystem;
class MessagePort;
}  // namespace renvale::platform

namespace renvale::shell {

struct MainWindowUi;
class MediaPane;

// The preview area of the main window: the caption, the picture, the
// "Preview" and "External Preview" buttons and "Rotate Preview 90 degrees".
// Pictures are decoded on a thread of their own; only the newest request
// counts, so arrowing through a folder never queues stale work and the
// window never waits for a decode.
class PreviewPane : public QObject {
  Q_OBJECT

 public:
  using ExternalOpener = std::function<platform::DefaultApplication::Result(const QByteArray&)>;

  PreviewPane(MainWindowUi& ui, core::RenameSession& session, const core::SettingsRecord& settings,
              platform::FileSystem& fs, platform::MessagePort& messages, QObject* parent);
  ~PreviewPane() override;

  // Shows `name` of the current folder by its kind; an empty name means the
  // selected file.
  void ShowPreview(const platform::FileName& name = {});
  // Lets go of the previewed file (before it is renamed, moved or deleted)
  // and drops any decode still under way; the caption is the caller's.
  void ReleasePreview();
  void ShowSelected();
  void OpenSelectedExternally();
  // A quarter turn clockwise of the picture on show.
  void Rotate();
  // Draws the picture again in the area's size and the "PreviewStyle".
  void Render();

  void SetExternalOpener(ExternalOpener opener) { opener_ = std::move(opener); }
  // The media player, made when the first sound or video is shown.
  MediaPane& Media();
  const QImage& Picture() const { return image_; }

 signals:
  // A requested picture is on screen.
  void PictureShown();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  struct Request {
    quint64 id = 0;
    QByteArray path;
    QSize area;
    bool fill = false;
  };

  void ShowMedia(const platform::FileName& file);
  void ShowCaption(const QString& text);
  void RestoreCaption();
  void Post(const Request& request);
  void WorkOnPending();  // on the decoding thread
  void TakeDecoded(const Request& request, DecodedPreview&& decoded);
  QSize Area() const;
  bool Fill() const;
  void PutOnScreen(QImage&& shown);

  MainWindowUi& ui_;
  core::RenameSession& session_;
  const core::SettingsRecord& settings_;
  platform::FileSystem& fs_;
  platform::MessagePort& messages_;
  ExternalOpener opener_ = platform::DefaultApplication::Open;
  QMenu* extprev_ = nullptr;  // the picture's pop-up menu
  MediaPane* media_ = nullptr;
  QImage image_;
  quint64 currentId_ = 0;
  QString currentName_;
  QString caption_;  // the picture's caption, see RestoreCaption

  QThread thread_;
  QObject* worker_ = nullptr;  // lives on thread_
  std::mutex mutex_;
  std::optional<Request> pending_;
  bool posted_ = false;
};

}  // namespace renvale::shell
