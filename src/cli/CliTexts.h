#pragma once

#include <QString>

// The fixed texts of renvale-batch. Each error is one line, so that a script
// reading standard error gets one reason per failure.
namespace renvale::cli::texts {

inline const QString kProgram = QStringLiteral("renvale-batch");
inline const QString kErrorPrefix = QStringLiteral("renvale-batch: ");
inline const QString kWarningPrefix = QStringLiteral("renvale-batch: warning: ");

inline const QString kUnknownOption = QStringLiteral("unknown option '%1' (see renvale-batch --help)");
inline const QString kNeedsValue = QStringLiteral("option '%1' needs a value");
inline const QString kBadSeries = QStringLiteral("'--series' takes a whole number from 0 up, not '%1'");
inline const QString kBadSeed = QStringLiteral("'--seed' takes a whole number from 0 to 4294967295, not '%1'");
inline const QString kSeedWithoutRandom = QStringLiteral("'--seed' is for '--random-series' only");
inline const QString kRandomWithoutName = QStringLiteral("'--random-series' and '--seed' are for '--name' only");
inline const QString kBadReplace = QStringLiteral("'--replace' takes SEARCH=REPLACEMENT with SEARCH not empty, not '%1'");
inline const QString kTooManyReplace = QStringLiteral("at most six '--replace' pairs can be chained");
inline const QString kBadOnClash = QStringLiteral("'--on-clash' takes 'skip' or 'fail', not '%1'");
inline const QString kForbiddenCharacter =
    QStringLiteral("'%1' holds a character that is not allowed in a file name:  \\ / : * ? \" < > |");
inline const QString kNoAction = QStringLiteral("say what to do: --name, --replace, --history or --undo (see --help)");
inline const QString kTwoActions = QStringLiteral("'%1' and '%2' cannot be used together");
inline const QString kNoFiles = QStringLiteral("no files given");
inline const QString kFilesNotTaken = QStringLiteral("'%1' takes no files ('%2')");
inline const QString kMissingFile = QStringLiteral("no such file: '%1'");
inline const QString kNotAFile = QStringLiteral("not a file: '%1'");
inline const QString kNameIsFirstFile =
    QStringLiteral("'%1' is the first file's own name: give the name the batch is to make");
inline const QString kEmptyName = QStringLiteral("the name given to '--name' is empty");

inline const QString kSkipped = QStringLiteral("skipped '%1': '%2' is already taken");
inline const QString kNotReached = QStringLiteral("'%1' was not renamed: the run stopped before its turn");
inline const QString kClashNothingRenamed =
    QStringLiteral("nothing renamed: '%1' would take '%2', which is already taken (--on-clash=fail)");
inline const QString kNoHistory = QStringLiteral("nothing to undo");
inline const QString kUnknownId = QStringLiteral("no operation '%1' in the history (see --history)");
inline const QString kAlreadyUndone = QStringLiteral("operation '%1' was undone already");
inline const QString kUndoneMark = QStringLiteral(" (undone)");

inline const QString kArrow = QStringLiteral(" \u2192 ");
inline const QString kNoteIndent = QStringLiteral("    ");

inline const QString kHelp = QStringLiteral(
    "Usage: renvale-batch --name BASE [--series N] [--random-series [--seed S]] [--on-clash=skip|fail]\n"
    "                     [--dry-run] [--json] FILE...\n"
    "       renvale-batch --replace SEARCH=REPLACEMENT [--replace ...] [--dry-run] [--json] FILE...\n"
    "       renvale-batch --history [--json]\n"
    "       renvale-batch --undo [ID]\n"
    "\n"
    "Renames files as Renvale's \"Start Batch Renaming\" and search and replace do, with the\n"
    "same settings (date and time formats, series digits and spacing, lower-case extensions)\n"
    "and the same undo history.\n"
    "\n"
    "  --name BASE        the new name; %DATE%, %TIME%, %DATE TIME%, %SERIES%, %ORIGFN%,\n"
    "                     %SERIAL%, %TITLE%, %ARTIST%, %ALBUM% and %TRACK% are filled in per file\n"
    "  --series N         the first series number (default 1)\n"
    "  --random-series    hands the numbers N, N+1, ... out in a shuffled order, each once, as\n"
    "                     \"Randomize Series #s\" does; the order is drawn anew each run\n"
    "  --seed S           draws that order from S instead, so that a dry run and the run after\n"
    "                     it with the same S (and the same files) give the same names\n"
    "  --replace S=R      replaces S by R in each name; up to six, applied in order\n"
    "  --on-clash=skip    a name already taken by a file outside the batch: that file is\n"
    "                     skipped with a line on standard error (the default)\n"
    "  --on-clash=fail    ... or nothing at all is renamed\n"
    "  --dry-run          prints every old and new name with its notes and changes nothing\n"
    "  --json             prints one JSON object per line instead\n"
    "  --history          lists the operations that can be undone, newest first, with their IDs\n"
    "  --undo [ID]        undoes the newest operation, or the one with that ID\n"
    "  --help             shows this text\n"
    "\n"
    "Exit status: 0 every file got its name, 1 some were skipped, 2 errors or bad arguments.\n");

}  // namespace renvale::cli::texts
