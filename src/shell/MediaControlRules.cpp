#include "shell/MediaControlRules.h"

#include <algorithm>
#include <cmath>

namespace renvale::shell {

using platform::MediaState;

MediaControls MediaControlRules::ControlsFor(const MediaFacts& facts) {
  const MediaState state = facts.state;
  const bool open = state == MediaState::Stopped || state == MediaState::Playing || state == MediaState::Paused;
  if (!open) return {};
  const bool seek = facts.seekable && facts.duration > 0;
  MediaControls controls;
  controls.play = state != MediaState::Playing;
  controls.pause = state == MediaState::Playing;
  controls.stop = state != MediaState::Stopped;
  controls.stepBack = seek && facts.position > 0;
  controls.stepForward = seek && facts.position < facts.duration;
  controls.volume = facts.hasAudio;
  controls.position = seek;
  return controls;
}

QString MediaControlRules::SecondsText(qint64 ms) {
  const qint64 hundredths = (std::max<qint64>(ms, 0) + 5) / 10;
  const qint64 whole = hundredths / 100;
  const QString fraction = QStringLiteral("%1").arg(hundredths % 100, 2, 10, QLatin1Char('0'));
  return (whole > 0 ? QString::number(whole) : QString()) + QLatin1Char('.') + fraction;
}

qint64 MediaControlRules::StepTarget(const MediaFacts& facts, int direction) {
  constexpr double kDefaultFrameRate = 25;
  constexpr qint64 kSoundStep = 1000;
  const double rate = facts.frameRate > 0 ? facts.frameRate : kDefaultFrameRate;
  const qint64 step = facts.hasVideo ? std::max<qint64>(1, std::llround(1000.0 / rate)) : kSoundStep;
  const qint64 target = facts.position + (direction < 0 ? -step : step);
  return std::clamp<qint64>(target, 0, std::max<qint64>(facts.duration, 0));
}

}  // namespace renvale::shell
