#pragma once

#include <QStringList>

#include "platform/MessagePort.h"

namespace renvale::cli {

// The message port of a program that never asks. Every question gets the
// answer that loses nothing: a warning about the base name is accepted (the
// person typed it on purpose), a question whose Yes would replace a file is
// answered No, anything else Cancel. Each message becomes one line for
// standard error.
class HeadlessMessagePort : public platform::MessagePort {
 public:
  platform::MessageAnswer Show(const platform::Message& message) override;
  void Beep() override {}

  // What would have been shown, one line each, in order: errors and
  // warnings for standard error, and plain information (an undo's result).
  QStringList lines;
  QStringList notices;
  // Set by a critical message: an error, not a mere skip.
  bool failed = false;

  // `text` on one line: the message boxes break lines with CR and LF.
  static QString OneLine(const QString& text);
};

}  // namespace renvale::cli
