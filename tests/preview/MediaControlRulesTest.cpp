#include <gtest/gtest.h>

#include "shell/MediaControlRules.h"

namespace renvale::test {
namespace {

using platform::MediaState;
using shell::MediaControlRules;

TEST(MediaControlRules, SecondsInTheHashHashHashPointZeroZeroLayout) {
  const struct {
    qint64 ms;
    const char* text;
  } rows[] = {{0, ".00"},        {4, ".00"},           {5, ".01"},         {500, ".50"},  {1234, "1.23"},
              {59999, "60.00"},  {123456, "123.46"},  {3600000, "3600.00"}, {-40, ".00"}};
  for (const auto& row : rows) EXPECT_EQ(MediaControlRules::SecondsText(row.ms), row.text) << row.ms;
}

TEST(MediaControlRules, WhichControlsWork) {
  // play, pause, stop, step back, step forward, volume, position
  const struct {
    MediaState state;
    bool seekable, audio;
    qint64 position;
    const char* expected;
  } rows[] = {
      {MediaState::Empty, true, true, 0, "-------"},    {MediaState::Loading, true, true, 0, "-------"},
      {MediaState::Failed, true, true, 0, "-------"},   {MediaState::Stopped, true, true, 0, "P---FVS"},
      {MediaState::Playing, true, true, 500, "-PSBFVS"}, {MediaState::Paused, true, false, 1000, "P-SB--S"},
      {MediaState::Paused, false, true, 500, "P-S--V-"},
  };
  for (const auto& row : rows) {
    const shell::MediaControls c = MediaControlRules::ControlsFor(
        {row.state, row.seekable, row.audio, false, row.position, 1000, 0});
    const char got[] = {c.play ? 'P' : '-',     c.pause ? 'P' : '-',       c.stop ? 'S' : '-',
                        c.stepBack ? 'B' : '-', c.stepForward ? 'F' : '-', c.volume ? 'V' : '-',
                        c.position ? 'S' : '-', '\0'};
    EXPECT_STREQ(got, row.expected) << static_cast<int>(row.state) << " at " << row.position;
  }
}

TEST(MediaControlRules, AStepIsAFrameOfVideoOrASecondOfSound) {
  const struct {
    bool video;
    double rate;
    qint64 position;
    int direction;
    qint64 target;
  } rows[] = {
      {true, 0, 1000, 1, 1040},   {true, 30, 1000, 1, 1033}, {true, 30, 1000, -1, 967},
      {false, 30, 1000, 1, 2000}, {false, 0, 500, -1, 0},    {false, 0, 9500, 1, 10000},
  };
  for (const auto& row : rows) {
    const shell::MediaFacts facts{MediaState::Paused, true, true, row.video, row.position, 10000, row.rate};
    EXPECT_EQ(MediaControlRules::StepTarget(facts, row.direction), row.target) << row.position << row.direction;
  }
}

}  // namespace
}  // namespace renvale::test
