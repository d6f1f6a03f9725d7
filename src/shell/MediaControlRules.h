#pragma once

#include <QString>

#include "platform/widgets/MediaPlayer.h"

namespace renvale::shell {

// What the player tells the controls.
struct MediaFacts {
  platform::MediaState state = platform::MediaState::Empty;
  bool seekable = false;
  bool hasAudio = false;
  bool hasVideo = false;
  qint64 position = 0;  // ms
  qint64 duration = 0;  // ms
  double frameRate = 0;
};

// Which of the player's controls can be used.
struct MediaControls {
  bool play = false;
  bool pause = false;
  bool stop = false;
  bool stepBack = false;
  bool stepForward = false;
  bool volume = false;
  bool position = false;
};

// The rules of the preview's media controls, apart from any widget.
class MediaControlRules {
 public:
  static MediaControls ControlsFor(const MediaFacts& facts);

  // Seconds in the "###.00" layout: two decimals, no leading zero, so that
  // half a second reads ".50".
  static QString SecondsText(qint64 ms);

  // Where a step lands: a frame of a video (a 25th of a second when the
  // file does not say its rate), a second of sound; never outside the file.
  static qint64 StepTarget(const MediaFacts& facts, int direction);
};

}  // namespace renvale::shell
