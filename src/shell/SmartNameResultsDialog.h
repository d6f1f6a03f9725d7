#pragma once

#include <QDialog>

namespace renvale::shell {

// "SmartName - Results Window" (`SNResults`): the names SmartName gave,
// shown until "OK".
class SmartNameResultsDialog : public QDialog {
  Q_OBJECT

 public:
  SmartNameResultsDialog(const QString& report, QWidget* parent);
};

}  // namespace renvale::shell
