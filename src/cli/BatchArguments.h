#pragma once

#include <QByteArray>
#include <QString>
#include <optional>
#include <utility>
#include <vector>

namespace renvale::cli {

enum class Action { None, Help, Name, Replace, History, Undo };

// What the command line asks for, checked as far as it can be without
// looking at the disk.
struct BatchArguments {
  Action action = Action::None;
  QString name;
  std::optional<qint64> series;
  std::vector<std::pair<QString, QString>> replacements;  // in the order given
  bool randomSeries = false;
  std::optional<quint32> seed;  // the random series' seed; none: the time of day
  bool failOnClash = false;
  bool dryRun = false;
  bool json = false;
  QString undoId;               // empty: the newest operation
  std::vector<QByteArray> files;  // as given, raw bytes

  // Empty when the arguments can be used; else the one line that says why not.
  QString error;
};

// Whether the run works out every file's name before it renames any: what
// it prints first (a dry run, JSON with its notes) or decides first
// (--on-clash=fail) needs every name beforehand.
inline bool NamesEveryFileFirst(const BatchArguments& args) { return args.dryRun || args.json || args.failOnClash; }

// `args` excludes the program name. File arguments stay bytes: a name on a
// card need not be valid UTF-8.
BatchArguments ParseBatchArguments(std::vector<QByteArray> args);

}  // namespace renvale::cli
