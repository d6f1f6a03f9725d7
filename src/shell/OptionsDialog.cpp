#include "shell/OptionsDialog.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QDateTime>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include "core/ExifFormatChoices.h"
#include "platform/MessagePort.h"
#include "platform/widgets/HelpWindow.h"
#include "shell/ButtonTexts.h"
#include "shell/OptionsHost.h"
#include "shell/OptionsTexts.h"

namespace renvale::shell {
namespace {

QGroupBox* Group(QWidget* parent, const char* objectName, const QString& title) {
  auto* group = new QGroupBox(title, parent);
  group->setObjectName(QString::fromLatin1(objectName));
  // Screen readers would name a group inside a group after the outer one.
  group->setAccessibleName(QString(title).replace(QLatin1String("&&"), QLatin1String("&")));
  return group;
}

QLabel* NamedLabel(QWidget* parent, const char* objectName, const QString& text) {
  auto* label = new QLabel(text, parent);
  label->setObjectName(QString::fromLatin1(objectName));
  label->setTextFormat(Qt::PlainText);
  return label;
}

QPushButton* NamedButton(QWidget* parent, const char* objectName, const QString& caption) {
  auto* button = new QPushButton(caption, parent);
  button->setObjectName(QString::fromLatin1(objectName));
  button->setAutoDefault(false);
  return button;
}

// "SAMPLE: " followed by the sample itself, which names itself after it.
QHBoxLayout* SampleRow(QWidget* parent, QLabel* sample) {
  auto* row = new QHBoxLayout;
  auto* caption = new QLabel(texts::kSampleLabel, parent);
  caption->setBuddy(sample);
  row->addWidget(caption);
  row->addWidget(sample, 1);
  return row;
}

// Every format is short: the list is as wide and as tall as its entries, so
// that none is cut off and none needs scrolling.
void FitToEntries(QListWidget* list) {
  const int frame = 2 * list->frameWidth();
  list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  list->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  list->setFixedWidth(list->sizeHintForColumn(0) + frame + list->verticalScrollBar()->sizeHint().width());
  list->setFixedHeight(list->sizeHintForRow(0) * list->count() + frame);
}

}  // namespace

OptionsDialog::OptionsDialog(core::SettingsRecord& settings, platform::SettingsStorage& storage,
                             platform::MessagePort& messages, OptionsHost& host, QWidget* parent)
    : QDialog(parent), choices_(settings, storage), messages_(messages), host_(host) {
  setObjectName(QStringLiteral("Options"));
  setWindowTitle(texts::kOptionsCaption);
  setWindowModality(Qt::ApplicationModal);
  auto* columns = new QHBoxLayout;
  auto* left = new QVBoxLayout;
  for (QGroupBox* group : {BuildResizing(), BuildFilter(), BuildQuickTips(), BuildFormats()}) left->addWidget(group);
  auto* right = new QVBoxLayout;
  for (QGroupBox* group : {BuildSeries(), BuildToolTips(), BuildPreview()}) right->addWidget(group);
  right->addStretch(1);
  columns->addLayout(left, 1);
  columns->addLayout(right, 1);

  auto* buttons = new QHBoxLayout;
  Command5 = NamedButton(this, "Command5", texts::kHelpButton);
  platform::AttachHelp(this, Command5, platform::HelpTopic::Options);
  Command1 = NamedButton(this, "Command1", texts::kDoneButton);
  connect(Command1, &QPushButton::clicked, this, &OptionsDialog::Done);
  buttons->addStretch(1);
  buttons->addWidget(Command5);
  buttons->addWidget(Command1);

  auto* layout = new QVBoxLayout(this);
  layout->addLayout(columns);
  layout->addLayout(buttons);
  Mirror();
  // F12 is meant for the window, whichever control has the keyboard.
  installEventFilter(this);
  for (QWidget* child : findChildren<QWidget*>()) child->installEventFilter(this);
  adjustSize();
  if (const QScreen* screen = this->screen()) move(screen->availableGeometry().center() - rect().center());
}

QCheckBox* OptionsDialog::Check(QWidget* parent, const char* objectName, const QString& caption,
                                OptionControl control) {
  auto* box = new QCheckBox(caption, parent);
  box->setObjectName(QString::fromLatin1(objectName));
  // Only the person's clicks react; setting the box from the record does not.
  connect(box, &QCheckBox::clicked, this, [this, control](bool checked) { React(control, checked ? 1 : 0); });
  checks_.emplace_back(box, control);
  return box;
}

QRadioButton* OptionsDialog::Option(QWidget* parent, QButtonGroup*& group, const char* objectName, int index,
                                    const QString& caption, OptionControl control) {
  if (group == nullptr) {
    group = new QButtonGroup(this);
    group->setObjectName(QString::fromLatin1(objectName));
    connect(group, &QButtonGroup::idClicked, this, [this, control](int id) { React(control, id); });
    groups_.emplace_back(group, control);
  }
  auto* button = new QRadioButton(caption, parent);
  button->setObjectName(QString::fromLatin1(objectName));
  button->setProperty("index", index);
  group->addButton(button, index);
  return button;
}

QGroupBox* OptionsDialog::BuildResizing() {
  QGroupBox* group = Group(this, "Frame1", texts::kResizingGroup);
  auto* layout = new QVBoxLayout(group);
  ResFonts = Check(group, "ResFonts", texts::kResizeFonts, OptionControl::ResFonts);
  layout->addWidget(ResFonts);
  return group;
}

QGroupBox* OptionsDialog::BuildFilter() {
  QGroupBox* group = Group(this, "Frame2", texts::kFilterGroup);
  auto* layout = new QVBoxLayout(group);
  FLC = Check(group, "FLC", texts::kForceLowerCase, OptionControl::FLC);
  layout->addWidget(FLC);
  layout->addWidget(Option(group, FF, "FF", 0, texts::kAllFiles, OptionControl::FF));
  layout->addWidget(Option(group, FF, "FF", 1, texts::kTypicalImageFiles, OptionControl::FF));
  return group;
}

QGroupBox* OptionsDialog::BuildQuickTips() {
  QGroupBox* group = Group(this, "Frame3", texts::kQuickTipsGroup);
  auto* layout = new QHBoxLayout(group);
  Command2 = NamedButton(group, "Command2", texts::kRestoreQuickTips);
  connect(Command2, &QPushButton::clicked, this, [this] { Tell(choices_.RestoreQuickTips()); });
  QLabel* note = NamedLabel(group, "Label1", texts::kRestoreQuickTipsNote);
  note->setWordWrap(true);
  layout->addWidget(Command2);
  layout->addWidget(note, 1);
  return group;
}

QGroupBox* OptionsDialog::BuildFormats() {
  QGroupBox* group = Group(this, "Frame4", texts::kExifFormatGroup);
  auto* layout = new QHBoxLayout(group);
  layout->addWidget(BuildFormatList("Frame5", texts::kDateGroup, "DateFormat", DateFormat, "Label2", Label2,
                                    texts::kDateSampleDesign));
  layout->addWidget(BuildFormatList("Frame6", texts::kTimeGroup, "TimeFormat", TimeFormat, "Label3", Label3,
                                    texts::kTimeSampleDesign));
  DateFormat->addItems(core::DateFormatChoices());
  TimeFormat->addItems(core::TimeFormatChoices());
  FitToEntries(DateFormat);
  FitToEntries(TimeFormat);
  connect(DateFormat, &QListWidget::currentRowChanged, this,
          [this](int row) { React(OptionControl::DateFormat, row); });
  connect(TimeFormat, &QListWidget::currentRowChanged, this,
          [this](int row) { React(OptionControl::TimeFormat, row); });
  return group;
}

QGroupBox* OptionsDialog::BuildFormatList(const char* groupName, const QString& title, const char* listName,
                                          QListWidget*& list, const char* sampleName,
                                          QLabel*& sample, const QString& design) {
  QGroupBox* group = Group(this, groupName, title);
  auto* layout = new QGridLayout(group);
  list = new QListWidget(group);
  list->setObjectName(QString::fromLatin1(listName));
  list->setAccessibleName(title);
  auto* choose = new QLabel(texts::kChooseFormat, group);
  choose->setBuddy(list);
  sample = NamedLabel(group, sampleName, design);
  layout->addWidget(choose, 0, 0, Qt::AlignTop);
  layout->addWidget(list, 0, 1);
  layout->addLayout(SampleRow(group, sample), 1, 0, 1, 2);
  layout->setRowStretch(2, 1);
  return group;
}

QGroupBox* OptionsDialog::BuildSeries() {
  QGroupBox* group = Group(this, "Frame7", texts::kSeriesGroup);
  auto* layout = new QVBoxLayout(group);
  QGroupBox* digits = Group(group, "Frame8", texts::kPlaceholdersGroup);
  auto* digitsLayout = new QVBoxLayout(digits);
  for (int index = 0; index < 5; ++index) {
    digitsLayout->addWidget(
        Option(digits, Option1, "Option1", index, texts::kPlaceholderChoices[index], OptionControl::Option1));
  }
  Sample = NamedLabel(digits, "Sample", QString());
  digitsLayout->addLayout(SampleRow(digits, Sample));
  QGroupBox* spacing = Group(group, "Frame9", texts::kSpacingGroup);
  auto* spacingLayout = new QVBoxLayout(spacing);
  // Shown from no spacing up to a space, the order the samples read best in.
  for (int index : {2, 1, 0}) {
    spacingLayout->addWidget(
        Option(spacing, Option3, "Option3", index, texts::kSpacingChoices[index], OptionControl::Option3));
  }
  SpaceSample = NamedLabel(spacing, "SpaceSample", texts::kSpacingSampleBase + QLatin1Char(' ') +
                                                       texts::kSpacingSampleNumber);
  spacingLayout->addWidget(SpaceSample);
  Check3 = Check(group, "Check3", texts::kAutoResetSeries, OptionControl::Check3);
  layout->addWidget(digits);
  layout->addWidget(spacing);
  layout->addWidget(Check3);
  return group;
}

QGroupBox* OptionsDialog::BuildToolTips() {
  QGroupBox* group = Group(this, "Frame10", texts::kToolTipsGroup);
  auto* layout = new QVBoxLayout(group);
  Check2 = Check(group, "Check2", texts::kShowToolTips, OptionControl::Check2);
  layout->addWidget(Check2);
  return group;
}

QGroupBox* OptionsDialog::BuildPreview() {
  QGroupBox* group = Group(this, "Frame11", texts::kPreviewGroup);
  auto* layout = new QVBoxLayout(group);
  layout->addWidget(Option(group, Option2, "Option2", 0, texts::kLargeView, OptionControl::Option2));
  layout->addWidget(Option(group, Option2, "Option2", 1, texts::kThumbnailView, OptionControl::Option2));
  Check1 = Check(group, "Check1", texts::kAutoPreview, OptionControl::Check1);
  layout->addWidget(Check1);
  return group;
}

void OptionsDialog::React(OptionControl control, int value) {
  const OptionEffect effect = choices_.Choose(control, value);
  if (effect.refilterFiles) host_.ApplyFileFilter(choices_.Current(OptionControl::FF));
  ShowSamples();
  if (!effect.message.isEmpty()) Tell(effect.message);
}

void OptionsDialog::Mirror() {
  for (auto& [box, control] : checks_) box->setChecked(choices_.Current(control) != 0);
  for (auto& [group, control] : groups_) group->button(choices_.Current(control))->setChecked(true);
  const QSignalBlocker dateBlocker(DateFormat);
  const QSignalBlocker timeBlocker(TimeFormat);
  DateFormat->setCurrentRow(choices_.Current(OptionControl::DateFormat));
  TimeFormat->setCurrentRow(choices_.Current(OptionControl::TimeFormat));
  ShowSamples();
}

void OptionsDialog::ShowSamples() {
  const QDateTime now = QDateTime::currentDateTime();
  Label2->setText(choices_.DateSample(now.date()));
  Label3->setText(choices_.TimeSample(now.time()));
  Sample->setText(choices_.PlaceholderSample());
  SpaceSample->setText(choices_.SpacingSample());
}

void OptionsDialog::Tell(const QString& message) { messages_.Notify(message, platform::MessageIcon::Information); }

void OptionsDialog::Open() {
  Mirror();
  show();
  raise();
  activateWindow();
}

void OptionsDialog::Done() {
  choices_.ApplyToWindow(host_);
  hide();
}

// Closing the window or pressing Escape is "Done" too: every choice has
// already been taken, so there is nothing to cancel.
void OptionsDialog::reject() { Done(); }

bool OptionsDialog::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::KeyRelease) return QDialog::eventFilter(watched, event);
  auto* key = static_cast<QKeyEvent*>(event);
  if (key->key() != Qt::Key_F12 || key->isAutoRepeat()) return false;
  Tell(choices_.ToggleFixDirectShow());
  return true;
}

}  // namespace renvale::shell
