#pragma once

#include <QDialog>

class QCheckBox;
class QLabel;
class QPushButton;
class QTextEdit;

namespace renvale::shell {

class QuickTipRules;

// The `QuickTip` window: shows the rules' current tip and hands the two
// check boxes back to them however the window is closed.
class QuickTip : public QDialog {
  Q_OBJECT

 public:
  QuickTip(QuickTipRules& rules, QWidget* parent = nullptr);

  void done(int result) override;

  QTextEdit* TipText = nullptr;
  QLabel* Image1 = nullptr;
  QCheckBox* NoMoreTip = nullptr;
  QCheckBox* TipsOFF = nullptr;
  QPushButton* Command1 = nullptr;

 private:
  void BuildControls();

  QuickTipRules& rules_;
  bool closed_ = false;
};

}  // namespace renvale::shell
