#pragma once

#include "core/SeriesBox.h"

class QLineEdit;

namespace renvale::shell {

// The "Next Series #:" line edit seen as the series counter's box.
class SeriesLineEdit : public core::SeriesBox {
 public:
  explicit SeriesLineEdit(QLineEdit& box) : box_(box) {}

  QString Text() const override;
  void SetText(const QString& text) override;

 private:
  QLineEdit& box_;
};

}  // namespace renvale::shell
