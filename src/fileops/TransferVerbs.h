#pragma once

#include <QString>

namespace renvale::fileops {

// The transfer modes as the settings keep them.
inline constexpr int kCopyMode = 0;
inline constexpr int kMoveMode = 1;

// The three forms of the verb that the messages of a transfer use.
struct TransferVerbs {
  QString verb, verbing, verbed;

  static TransferVerbs ForMode(int mode) {
    if (mode == kMoveMode) return {QStringLiteral("move"), QStringLiteral("moving"), QStringLiteral("moved")};
    return {QStringLiteral("copy"), QStringLiteral("copying"), QStringLiteral("copied")};
  }
};

}  // namespace renvale::fileops
