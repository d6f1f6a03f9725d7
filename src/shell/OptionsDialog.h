#pragma once

#include <QDialog>
#include <utility>
#include <vector>

#include "shell/OptionChoices.h"

class QAbstractButton;
class QButtonGroup;
class QCheckBox;
class QGroupBox;
class QLabel;
class QListWidget;
class QPushButton;
class QRadioButton;

namespace renvale::platform {
class MessagePort;
}  // namespace renvale::platform

namespace renvale::shell {

class OptionsHost;

// The options window `Options`: made once, hidden, when the settings are
// loaded, and only shown and hidden from then on. Every choice takes effect
// in the settings at once; "Done" passes the rest on to the main window.
class OptionsDialog : public QDialog {
  Q_OBJECT

 public:
  OptionsDialog(core::SettingsRecord& settings, platform::SettingsStorage& storage,
                platform::MessagePort& messages, OptionsHost& host, QWidget* parent);

  // Tools > "&Program Options": shows the settings as they are now, which
  // templates and batches may have changed since the last time.
  void Open();
  // "Done".
  void Done();
  void reject() override;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QGroupBox* BuildResizing();
  QGroupBox* BuildFilter();
  QGroupBox* BuildQuickTips();
  QGroupBox* BuildFormats();
  QGroupBox* BuildFormatList(const char* groupName, const QString& title, const char* listName,
                             QListWidget*& list, const char* sampleName,
                             QLabel*& sample, const QString& design);
  QGroupBox* BuildSeries();
  QGroupBox* BuildToolTips();
  QGroupBox* BuildPreview();
  QCheckBox* Check(QWidget* parent, const char* objectName, const QString& caption, OptionControl control);
  QRadioButton* Option(QWidget* parent, QButtonGroup*& group, const char* objectName, int index,
                       const QString& caption, OptionControl control);
  void React(OptionControl control, int value);
  void Mirror();
  void ShowSamples();
  void Tell(const QString& message);

  OptionChoices choices_;
  platform::MessagePort& messages_;
  OptionsHost& host_;
  // Which control stands for which setting, to set them back from the record.
  std::vector<std::pair<QCheckBox*, OptionControl>> checks_;
  std::vector<std::pair<QButtonGroup*, OptionControl>> groups_;

  QCheckBox* ResFonts = nullptr;
  QCheckBox* FLC = nullptr;
  QButtonGroup* FF = nullptr;
  QPushButton* Command2 = nullptr;
  QListWidget* DateFormat = nullptr;
  QListWidget* TimeFormat = nullptr;
  QLabel* Label2 = nullptr;
  QLabel* Label3 = nullptr;
  QButtonGroup* Option1 = nullptr;
  QLabel* Sample = nullptr;
  QButtonGroup* Option3 = nullptr;
  QLabel* SpaceSample = nullptr;
  QCheckBox* Check3 = nullptr;
  QCheckBox* Check2 = nullptr;
  QButtonGroup* Option2 = nullptr;
  QCheckBox* Check1 = nullptr;
  QPushButton* Command5 = nullptr;
  QPushButton* Command1 = nullptr;
};

}  // namespace renvale::shell
