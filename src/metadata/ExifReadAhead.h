#pragma once

#include <QByteArray>
#include <QHash>
#include <QString>
#include <condition_variable>
#include <memory>
#include <mutex>
#include <thread>
#include <vector>

#include "metadata/ExifReader.h"
#include "metadata/ExifValues.h"
#include "platform/FileSystem.h"

namespace renvale::metadata {

// Reads the EXIF naming values of a batch's files on a second thread, in
// the batch's order, while the first one renames: a batch over thousands of
// pictures then waits for neither the reads nor the date formatting. A
// taker that has caught up with the reader reads the next files itself
// instead of sleeping, so that a batch with nothing else to do reads on
// both processors.
//
// Only reading happens there; what a read would show ("EXIF Error: ...") is
// kept and shown by the caller when the file's turn comes, so messages come
// in the same order as without reading ahead. Values read ahead are right
// as long as no file of the folder is replaced: renaming moves names, never
// contents. A batch that replaces a file calls Drop(), and from then on
// every file is read at its turn again.
class ExifReadAhead {
 public:
  struct Result {
    ExifTokenValues values;
    QString errorMessage;  // empty, or the text to show for this file
    // The file as the read opened it, where it did.
    bool identityKnown = false;
    platform::FileInfo identity;
  };

  // `fs` must be readable from any thread. Starts reading at once. A
  // result knows its file's identity only where `identity` wants it.
  ExifReadAhead(platform::FileSystem& fs, const QByteArray& folder, std::vector<QByteArray> rawNames,
                const ExifDateFormats& formats, ExifReader::Identity identity);
  // Stops the reading (after the file at hand) and waits for it.
  ~ExifReadAhead();
  ExifReadAhead(const ExifReadAhead&) = delete;
  ExifReadAhead& operator=(const ExifReadAhead&) = delete;

  // The files it reads, in its order.
  const std::vector<QByteArray>& Names() const { return names_; }

  // The values of `rawName` in `folder` read with `formats`, reading them
  // (and the files after it) if the reader has not got there yet. False when that file was not read ahead
  // with those formats, or reading ahead was dropped: read it now instead.
  // Each file's values are handed out once.
  bool Take(const QByteArray& folder, const QByteArray& rawName, const ExifDateFormats& formats, Result* out);
  // False while Take(rawName) would have to read or wait.
  bool Ready(const QByteArray& rawName);

  // Files of the folder are about to change: nothing read ahead is used any
  // more, and the reader stops.
  void Drop();

 private:
  void Work(const std::stop_token& stop);
  // Reads the next files nobody has claimed yet, at most `most` of them,
  // with `hold` released for the reads; false when every file is claimed or
  // reading was dropped.
  bool ReadNext(std::unique_lock<std::mutex>& hold, qsizetype most);
  void Read(size_t at, Result* result) const;
  // Where `rawName` stands in the list, or -1.
  qsizetype PositionOf(const QByteArray& rawName, bool taking);

  platform::FileSystem& fs_;
  const QByteArray folder_;
  // Opening each file by its name alone spares walking the folder's path
  // (six names deep on a card) for every file.
  const std::unique_ptr<platform::ReadableFolder> held_;
  const std::vector<QByteArray> names_;
  const ExifDateFormats formats_;
  const ExifReader::Identity identity_;
  // Takers ask in list order, mostly: the name after the last one taken is
  // looked at first, and the table of every name's place is made only the
  // first time the answer is another. Used by the takers' thread alone.
  qsizetype lastTaken_ = -1;
  QHash<QByteArray, qsizetype> positions_;
  // Filled where done_ is set, by the thread that read the file, and let go
  // when taken: a card's worth of empty results made up front cost the
  // batch's thread milliseconds before its first file.
  std::vector<std::unique_ptr<Result>> results_;
  // Results taken, for the next reads to fill again: a result made on the
  // reader's thread and freed on the taker's made the two wait for each
  // other's allocator, once for every file.
  std::vector<std::unique_ptr<Result>> spare_;
  std::vector<char> done_;
  std::vector<bool> taken_;

  // How far the reader may run ahead of the furthest file asked for: far
  // enough to go on reading while a batch lists its folder and makes room
  // for its names before it asks for the first file.
  static constexpr qsizetype kReaderLead = 1024;
  // How far a taker whose file is not read yet reads on past it: not much
  // further, or it would be long away from its own work.
  static constexpr qsizetype kTakerLead = 256;
  // How many files the reader claims at once.
  static constexpr qsizetype kReaderClaims = 8;

  std::mutex lock_;
  std::condition_variable fileRead_;  // for Take: its file was read, or all dropped
  std::condition_variable mayRead_;   // for the reader: it may go on, or stop
  qsizetype next_ = 0;    // the first file neither thread has claimed
  qsizetype wanted_ = 0;  // one past the furthest file asked for
  qsizetype waitingFor_ = -1;  // the file a taker sleeps for, if any
  bool readerWaiting_ = false;
  bool dropped_ = false;
  std::jthread reader_;  // last: starts when everything it uses is built
};

}  // namespace renvale::metadata
