#include "shell/MediaPane.h"

#include <QBoxLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QSlider>

#include "shell/MainWindowUi.h"
#include "shell/ShellTexts.h"

namespace renvale::shell {

using platform::MediaState;

namespace {
constexpr int kLoadTimeoutMs = 15000;
enum MediaButtonIndex { kPlay, kPause, kStop, kStepBack, kStepForward };
}  // namespace

MediaPane::MediaPane(MainWindowUi& ui, QObject* parent)
    : QObject(parent), ui_(ui), player_(new platform::MediaPlayer(ui.previewFrame, this)) {
  // The video takes the picture's place in the area.
  auto* layout = static_cast<QBoxLayout*>(ui_.previewFrame->layout());
  layout->insertWidget(layout->indexOf(ui_.Gvbox1) + 1, player_->VideoWidget(), 1);
  loadTimeout_.setSingleShot(true);
  loadTimeout_.setInterval(kLoadTimeoutMs);
  connect(&loadTimeout_, &QTimer::timeout, this, &MediaPane::OnLoadTimeout);
  connect(player_, &platform::MediaPlayer::StateChanged, this, &MediaPane::OnState);
  connect(player_, &platform::MediaPlayer::FactsChanged, this, &MediaPane::OnFacts);
  connect(player_, &platform::MediaPlayer::PositionChanged, this, &MediaPane::ShowTimes);
  connect(player_, &platform::MediaPlayer::DurationChanged, this, &MediaPane::ShowTimes);
  connect(ui_.MediaButton[kPlay], &QPushButton::clicked, player_, &platform::MediaPlayer::Play);
  connect(ui_.MediaButton[kPause], &QPushButton::clicked, player_, &platform::MediaPlayer::Pause);
  connect(ui_.MediaButton[kStop], &QPushButton::clicked, player_, &platform::MediaPlayer::Stop);
  connect(ui_.MediaButton[kStepBack], &QPushButton::clicked, this, [this] { Step(-1); });
  connect(ui_.MediaButton[kStepForward], &QPushButton::clicked, this, [this] { Step(1); });
  connect(ui_.VolAdj, &QSlider::valueChanged, player_, &platform::MediaPlayer::SetVolume);
  player_->SetVolume(ui_.VolAdj->value());
  connect(ui_.Slider1, &QSlider::valueChanged, this, [this](int ms) {
    if (!showingPosition_) player_->SetPosition(ms);
  });
  ui_.mediaControls->setEnabled(true);
}

void MediaPane::Show(const QByteArray& path, const QString& name) {
  name_ = name;
  ready_ = false;
  ShowCaption(texts::kLoadingMedia);
  ui_.Gvbox1->clear();
  if (!player_->Load(path)) {
    Fail(texts::kNotARegularFile);
    return;
  }
  loadTimeout_.start();
  ShowControls();
  ShowTimes();
  ui_.mediaControls->show();
}

void MediaPane::Release() {
  loadTimeout_.stop();
  ready_ = false;
  player_->Release();
  ui_.mediaControls->hide();
  ui_.Gvbox1->show();
}

void MediaPane::OnState(MediaState state) {
  if (state == MediaState::Failed) {
    Fail(player_->ErrorText().isEmpty() ? texts::kUnknownMediaFailure : player_->ErrorText());
    return;
  }
  const bool open = state == MediaState::Stopped || state == MediaState::Playing || state == MediaState::Paused;
  if (open && !ready_) {
    loadTimeout_.stop();
    ready_ = true;
    OnFacts();
    emit Ready();
    return;
  }
  ShowControls();
  ShowTimes();
}

// A video's size and even whether there is one may be known only after the
// file has opened.
void MediaPane::OnFacts() {
  if (!ready_) return;
  const bool video = player_->HasVideo();
  const QSize size = player_->VideoSize();
  ShowCaption(video && size.isValid() ? texts::PictureCaption(name_, size.width(), size.height()) : name_);
  player_->VideoWidget()->setVisible(video);
  ui_.Gvbox1->setVisible(!video);
  ShowControls();
  ShowTimes();
}

void MediaPane::OnLoadTimeout() {
  if (player_->State() == MediaState::Loading) Fail(texts::kLoadTimedOut);
}

void MediaPane::Fail(const QString& reason) {
  Release();
  ShowCaption(texts::UnplayableCaption(name_, reason));
  emit Unplayable();
}

// Stepping halts a playing file: the step is there to look at one moment.
void MediaPane::Step(int direction) {
  if (player_->State() == MediaState::Playing) player_->Pause();
  player_->SetPosition(MediaControlRules::StepTarget(Facts(), direction));
}

void MediaPane::ShowCaption(const QString& text) {
  caption_ = text;
  ui_.previewCaption->setText(text);
}

void MediaPane::ShowControls() {
  const MediaControls controls = MediaControlRules::ControlsFor(Facts());
  ui_.MediaButton[kPlay]->setEnabled(controls.play);
  ui_.MediaButton[kPause]->setEnabled(controls.pause);
  ui_.MediaButton[kStop]->setEnabled(controls.stop);
  ui_.MediaButton[kStepBack]->setEnabled(controls.stepBack);
  ui_.MediaButton[kStepForward]->setEnabled(controls.stepForward);
  ui_.VolAdj->setEnabled(controls.volume);
  ui_.Slider1->setEnabled(controls.position);
}

// While the person drags the position slider it stays where they hold it.
void MediaPane::ShowTimes() {
  const MediaFacts facts = Facts();
  ui_.CurTime->setText(MediaControlRules::SecondsText(facts.position));
  ui_.TotalLength->setText(texts::kPositionSeparator + MediaControlRules::SecondsText(facts.duration));
  if (!ui_.Slider1->isSliderDown()) {
    showingPosition_ = true;
    ui_.Slider1->setRange(0, static_cast<int>(facts.duration));
    ui_.Slider1->setValue(static_cast<int>(facts.position));
    showingPosition_ = false;
  }
  // The steps depend on where the position is.
  const MediaControls controls = MediaControlRules::ControlsFor(facts);
  ui_.MediaButton[kStepBack]->setEnabled(controls.stepBack);
  ui_.MediaButton[kStepForward]->setEnabled(controls.stepForward);
}

MediaFacts MediaPane::Facts() const {
  MediaFacts facts;
  facts.state = player_->State();
  if (facts.state == MediaState::Empty || facts.state == MediaState::Failed) return facts;
  facts.seekable = player_->Seekable();
  facts.hasAudio = player_->HasAudio();
  facts.hasVideo = player_->HasVideo();
  facts.position = player_->Position();
  facts.duration = player_->Duration();
  facts.frameRate = player_->FrameRate();
  return facts;
}

}  // namespace renvale::shell
