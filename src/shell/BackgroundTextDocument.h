#pragma once

#include <QFont>
#include <QString>
#include <condition_variable>
#include <deque>
#include <memory>
#include <mutex>
#include <thread>

class QTextDocument;
class QThread;

namespace renvale::shell {

// A document for a plain text view, filled on a thread of its own while the
// window's thread goes on: the ten thousand lines of a long run's results
// are laid into a document while the person reads the run's closing
// message, not after it.
class BackgroundTextDocument {
 public:
  explicit BackgroundTextDocument(const QFont& font);
  // Abandons a document not taken.
  ~BackgroundTextDocument();
  BackgroundTextDocument(const BackgroundTextDocument&) = delete;
  BackgroundTextDocument& operator=(const BackgroundTextDocument&) = delete;

  // Adds `text` at the end.
  void Append(const QString& text);
  // How much has been appended.
  qsizetype Size() const { return size_; }
  // Whether `whole` goes on from what was appended: at least as long, with
  // the last piece appended in its place. Compares that piece only, not all.
  bool Continues(const QString& whole) const;
  // Waits until everything appended is in and hands the document to the
  // thread that made this object. Once only, on that thread.
  std::unique_ptr<QTextDocument> Take();

 private:
  enum class State { Filling, Taking, Abandoned };

  void Fill();

  const QFont font_;
  QThread* const owner_;
  qsizetype size_ = 0;
  QString last_;
  std::mutex mutex_;
  std::condition_variable changed_;
  std::deque<QString> pending_;
  State state_ = State::Filling;
  std::unique_ptr<QTextDocument> filled_;
  std::thread worker_;  // last: starts once everything above is there
};

}  // namespace renvale::shell
