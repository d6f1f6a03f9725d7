#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <vector>

#include "core/OperationPlan.h"
#include "core/TokenExpansion.h"
#include "platform/FileName.h"

namespace renvale::core {

// The four ID3v1 values a name can use. A file without a tag, or with an
// empty field, has the placeholder words ("Title", ...) instead.
struct Id3Values {
  QString title;
  QString artist;
  QString album;
  QString track;
};

// Where the renames get the values that live inside files: the picture's
// exposure date and serial number, and a song's ID3 tag. The window
// implements it over the EXIF and ID3 readers; tests use fixed values.
// Calls come once per token and file, so an implementation that reads the
// EXIF block once per file may keep the last file's values.
class TokenSource {
 public:
  virtual ~TokenSource() = default;

  // The text for Token::Date, Token::Time, Token::DateTime or Token::Serial
  // of `file` in `folder`, formatted with the user's date and time patterns.
  // A reader failure is shown by the implementation ("EXIF Error: ...") and
  // gives an empty text, as does any other token.
  virtual QString ExifValue(const QByteArray& folder, const platform::FileName& file, Token token) = 0;

  // The ID3 values of an ".mp3" file.
  virtual Id3Values Id3(const QByteArray& folder, const platform::FileName& file) = 0;

  // A batch is about to ask for the EXIF values of `files` in `folder`, in
  // this order; an implementation may start reading them ahead. With
  // `identities` the batch will also ask TakeReadIdentity of each.
  virtual void ExpectExifValues(const QByteArray& folder, const std::vector<platform::FileName>& files,
                                bool identities) {
    (void)folder;
    (void)files;
    (void)identities;
  }
  // A file of the folder is about to be replaced by another, so values read
  // ahead of their turn may no longer be the file's.
  virtual void FileReplaced() {}
  // False while the values of `file` are still being read ahead: asking
  // for them now would wait for that reading.
  virtual bool ValuesAtHand(const QByteArray& folder, const platform::FileName& file) {
    (void)folder;
    (void)file;
    return true;
  }
  // The identity of `file` as a read of its values since the last call saw
  // it (the open file's own); false when no such read was made. Every call
  // forgets what was read before it.
  virtual bool TakeReadIdentity(const QByteArray& folder, const platform::FileName& file, FileIdentity* identity) {
    (void)folder;
    (void)file;
    (void)identity;
    return false;
  }

  // While `sink` is set, a message that reading values would show ("EXIF
  // Error: ...") is added to it instead: a batch works out every name before
  // it renames and shows each message at its file's turn; a preview shows none.
  virtual void CollectMessages(QStringList* sink) { (void)sink; }

  // Where the date of `file` comes from, in words; empty when not known.
  virtual QString DateSourceText(const QByteArray& folder, const platform::FileName& file) {
    (void)folder;
    (void)file;
    return {};
  }
};

}  // namespace renvale::core
