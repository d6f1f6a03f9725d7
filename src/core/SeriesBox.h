#pragma once

#include <QString>

namespace renvale::core {

// The "Next Series #:" box as the series counter sees it. The window adapts
// its line edit to this; tests use a plain string.
class SeriesBox {
 public:
  virtual ~SeriesBox() = default;
  virtual QString Text() const = 0;
  virtual void SetText(const QString& text) = 0;
};

}  // namespace renvale::core
