#include "shell/BackgroundTextDocument.h"

#include <QPlainTextDocumentLayout>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QThread>

namespace renvale::shell {

BackgroundTextDocument::BackgroundTextDocument(const QFont& font)
    : font_(font), owner_(QThread::currentThread()), worker_([this] { Fill(); }) {}

BackgroundTextDocument::~BackgroundTextDocument() {
  if (!worker_.joinable()) return;
  {
    const std::lock_guard lock(mutex_);
    state_ = State::Abandoned;
  }
  changed_.notify_one();
  worker_.join();
}

void BackgroundTextDocument::Append(const QString& text) {
  // Nothing to add, and the last piece stays the one Continues compares.
  if (text.isEmpty()) return;
  size_ += text.size();
  last_ = text;
  {
    const std::lock_guard lock(mutex_);
    pending_.push_back(text);
  }
  changed_.notify_one();
}

bool BackgroundTextDocument::Continues(const QString& whole) const {
  return whole.size() >= size_ && QStringView(whole).sliced(size_ - last_.size(), last_.size()) == last_;
}

std::unique_ptr<QTextDocument> BackgroundTextDocument::Take() {
  {
    const std::lock_guard lock(mutex_);
    state_ = State::Taking;
  }
  changed_.notify_one();
  worker_.join();
  return std::move(filled_);
}

// The document is made here, so that it belongs to this thread while it is
// filled, and is moved to the owner's thread before it is handed over. An
// abandoned one is deleted here too, by the thread it belongs to.
void BackgroundTextDocument::Fill() {
  auto document = std::make_unique<QTextDocument>();
  document->setDocumentLayout(new QPlainTextDocumentLayout(document.get()));
  document->setDefaultFont(font_);
  document->setUndoRedoEnabled(false);
  {
    QTextCursor end(document.get());
    QTextBlock made;  // the last line whose layout object is made
    std::unique_lock lock(mutex_);
    for (;;) {
      changed_.wait(lock, [this] { return !pending_.empty() || state_ != State::Filling; });
      std::deque<QString> chunks;
      chunks.swap(pending_);
      const State state = state_;
      if (state == State::Abandoned) return;
      lock.unlock();
      end.beginEditBlock();
      for (const QString& chunk : chunks) end.insertText(chunk);
      end.endEditBlock();
      // A view that takes the document lays out every line once, and makes
      // each line's layout object on the way: that is most of the work, and
      // here it is done on this thread.
      for (QTextBlock line = made.isValid() ? made.next() : document->firstBlock(); line.isValid();
           line = line.next()) {
        line.layout();
        made = line;
      }
      lock.lock();
      // Taking is set after the last Append: once it is seen with nothing
      // pending, everything is in.
      if (state == State::Taking && pending_.empty()) break;
    }
  }
  document->setModified(false);
  document->moveToThread(owner_);
  filled_ = std::move(document);
}

}  // namespace renvale::shell
