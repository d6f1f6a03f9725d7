#include "shell/BackgroundTextDocument.h"

#include <gtest/gtest.h>

#include <QTextDocument>
#include <QThread>

namespace renvale::test {
namespace {

// Pieces handed in one after another end up whole and in order in a
// document that belongs to the taker's thread; one never taken is let go.
TEST(BackgroundTextDocument, HoldsEveryPieceInOrderOnTheTakersThread) {
  shell::BackgroundTextDocument pieces(QFont(QStringLiteral("Sans"), 13));
  QString whole;
  for (int i = 0; i < 300; ++i) {
    const QString piece = QStringLiteral("\n\"IMG_%1.JPG\" was renamed to \"Pic_%1.JPG\"").arg(i);
    pieces.Append(piece);
    whole += piece;
  }
  EXPECT_TRUE(pieces.Continues(whole + "x"));
  EXPECT_FALSE(pieces.Continues(QString(whole).replace(whole.size() - 3, 1, 'X')));
  EXPECT_FALSE(pieces.Continues(whole.chopped(1)));
  const std::unique_ptr<QTextDocument> document = pieces.Take();
  EXPECT_EQ(document->thread(), QThread::currentThread());
  EXPECT_EQ(document->toPlainText(), whole);
  EXPECT_EQ(document->defaultFont().pointSize(), 13);
  shell::BackgroundTextDocument abandoned{QFont()};
  abandoned.Append(whole);
}

}  // namespace
}  // namespace renvale::test
