#include "cli/BatchArguments.h"

#include "cli/CliTexts.h"
#include "core/FileNameRules.h"

namespace renvale::cli {

namespace {

constexpr size_t kMostReplacements = 6;

QString OptionName(Action action) {
  switch (action) {
    case Action::Name:
      return QStringLiteral("--name");
    case Action::Replace:
      return QStringLiteral("--replace");
    case Action::History:
      return QStringLiteral("--history");
    case Action::Undo:
      return QStringLiteral("--undo");
    default:
      return QStringLiteral("--help");
  }
}

class Parser {
 public:
  explicit Parser(std::vector<QByteArray> args) : args_(std::move(args)) {}

  // The files stay in the list they were given in, moved up over the
  // options: a card's ten thousand names are not copied into a second one.
  BatchArguments Run() && {
    while (next_ < args_.size() && out_.error.isEmpty()) Take(next_++);
    args_.resize(kept_);
    out_.files = std::move(args_);
    if (out_.error.isEmpty()) Check();
    return std::move(out_);
  }

 private:
  void Take(size_t at) {
    const QByteArray& arg = args_[at];
    if (endOfOptions_ || !arg.startsWith('-') || arg == "-") {
      if (kept_ != at) args_[kept_] = std::move(args_[at]);
      ++kept_;
      return;
    }
    if (arg == "--") {
      endOfOptions_ = true;
      return;
    }
    // "--option=value" and "--option value" mean the same.
    const qsizetype equals = arg.indexOf('=');
    const QString option = QString::fromUtf8(equals < 0 ? arg : arg.left(equals));
    std::optional<QString> inlineValue;
    if (equals >= 0) inlineValue = QString::fromUtf8(arg.mid(equals + 1));
    TakeOption(option, inlineValue);
  }

  void TakeOption(const QString& option, const std::optional<QString>& inlineValue) {
    if (option == QLatin1String("--help") || option == QLatin1String("-h")) {
      SetAction(Action::Help);
    } else if (option == QLatin1String("--dry-run")) {
      out_.dryRun = true;
    } else if (option == QLatin1String("--json")) {
      out_.json = true;
    } else if (option == QLatin1String("--history")) {
      SetAction(Action::History);
    } else if (option == QLatin1String("--undo")) {
      SetAction(Action::Undo);
      // The ID is optional: a following word that is no option is it.
      if (inlineValue) {
        out_.undoId = *inlineValue;
      } else if (next_ < args_.size() && !args_[next_].startsWith('-')) {
        out_.undoId = QString::fromUtf8(args_[next_++]);
      }
    } else if (option == QLatin1String("--name")) {
      SetAction(Action::Name);
      if (const auto value = Value(option, inlineValue)) out_.name = *value;
    } else if (option == QLatin1String("--series")) {
      if (const auto value = Value(option, inlineValue)) TakeSeries(*value);
    } else if (option == QLatin1String("--random-series")) {
      out_.randomSeries = true;
    } else if (option == QLatin1String("--seed")) {
      if (const auto value = Value(option, inlineValue)) TakeSeed(*value);
    } else if (option == QLatin1String("--replace")) {
      SetAction(Action::Replace);
      if (const auto value = Value(option, inlineValue)) TakeReplacement(*value);
    } else if (option == QLatin1String("--on-clash")) {
      if (const auto value = Value(option, inlineValue)) TakeOnClash(*value);
    } else {
      Fail(texts::kUnknownOption.arg(option));
    }
  }

  std::optional<QString> Value(const QString& option, const std::optional<QString>& inlineValue) {
    if (inlineValue) return inlineValue;
    if (next_ < args_.size()) return QString::fromUtf8(args_[next_++]);
    Fail(texts::kNeedsValue.arg(option));
    return std::nullopt;
  }

  void SetAction(Action action) {
    if (out_.action != Action::None && out_.action != action) {
      Fail(texts::kTwoActions.arg(OptionName(out_.action), OptionName(action)));
      return;
    }
    out_.action = action;
  }

  void TakeSeries(const QString& value) {
    bool ok = false;
    const qint64 number = value.toLongLong(&ok);
    if (!ok || number < 0 || value.startsWith(QLatin1Char('+'))) {
      Fail(texts::kBadSeries.arg(value));
      return;
    }
    out_.series = number;
  }

  void TakeSeed(const QString& value) {
    bool ok = false;
    const quint32 seed = value.toUInt(&ok);
    if (!ok || value.startsWith(QLatin1Char('+'))) {
      Fail(texts::kBadSeed.arg(value));
      return;
    }
    out_.seed = seed;
  }

  void TakeReplacement(const QString& value) {
    const qsizetype equals = value.indexOf(QLatin1Char('='));
    if (equals <= 0) {
      Fail(texts::kBadReplace.arg(value));
      return;
    }
    if (out_.replacements.size() == kMostReplacements) {
      Fail(texts::kTooManyReplace);
      return;
    }
    out_.replacements.emplace_back(value.left(equals), value.mid(equals + 1));
  }

  void TakeOnClash(const QString& value) {
    if (value == QLatin1String("fail")) {
      out_.failOnClash = true;
    } else if (value != QLatin1String("skip")) {
      Fail(texts::kBadOnClash.arg(value));
    }
  }

  // What can be judged only once every argument is read.
  void Check() {
    switch (out_.action) {
      case Action::None:
        Fail(texts::kNoAction);
        return;
      case Action::Help:
        return;
      case Action::History:
      case Action::Undo:
        if (!out_.files.empty()) {
          Fail(texts::kFilesNotTaken.arg(OptionName(out_.action), QString::fromUtf8(out_.files.front())));
        }
        return;
      case Action::Name:
        if (out_.name.isEmpty()) {
          Fail(texts::kEmptyName);
        } else if (core::HasInvalidFilenameChars(out_.name)) {
          Fail(texts::kForbiddenCharacter.arg(out_.name));
        } else if (out_.seed && !out_.randomSeries) {
          Fail(texts::kSeedWithoutRandom);
        }
        break;
      case Action::Replace:
        // Search and replace hands out no numbers: saying it would be a silent no.
        if (out_.randomSeries || out_.seed) Fail(texts::kRandomWithoutName);
        for (const auto& [search, replacement] : out_.replacements) {
          if (core::HasInvalidFilenameChars(replacement)) Fail(texts::kForbiddenCharacter.arg(replacement));
        }
        break;
    }
    if (out_.error.isEmpty() && out_.files.empty()) Fail(texts::kNoFiles);
  }

  void Fail(const QString& error) {
    if (out_.error.isEmpty()) out_.error = error;
  }

  std::vector<QByteArray> args_;
  size_t next_ = 0;
  size_t kept_ = 0;  // files so far, at the start of args_
  bool endOfOptions_ = false;
  BatchArguments out_;
};

}  // namespace

BatchArguments ParseBatchArguments(std::vector<QByteArray> args) { return Parser(std::move(args)).Run(); }

}  // namespace renvale::cli
