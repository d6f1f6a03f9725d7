#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QUrl>
#include <set>

#include "platform/AppPaths.h"
#include "platform/HelpTopics.h"

namespace renvale::platform {
namespace {

QString PageText(const QUrl& page) {
  QFile file(QLatin1Char(':') + page.path());
  if (!file.open(QIODevice::ReadOnly)) return {};
  return QString::fromUtf8(file.readAll());
}

// Every topic has a page of its own, and every link of every page, to a page,
// a place on a page or the style sheet, leads somewhere that exists.
TEST(HelpPages, EveryTopicOpensAPageAndEveryLinkResolves) {
  LoadHelpPages();
  std::set<QString> pages;
  for (HelpTopic topic : kAllHelpTopics) {
    const QUrl page(HelpFilePath() + HelpTopicPage(topic));
    SCOPED_TRACE(page.toString().toStdString());
    EXPECT_TRUE(pages.insert(page.toString()).second) << "two topics share a page";
    EXPECT_FALSE(HelpTopicTitle(topic).isEmpty());
    EXPECT_TRUE(PageText(page).contains(QStringLiteral("<h1>")));
  }
  const QStringList files = QDir(QStringLiteral(":/help")).entryList({QStringLiteral("*.html")});
  EXPECT_EQ(files.size(), static_cast<qsizetype>(pages.size())) << "a page no topic or contents entry reaches";
  const QRegularExpression link(QStringLiteral("(?:href|src)=\"([^\"]*)\""));
  for (const QString& name : files) {
    const QUrl page(HelpFilePath() + name);
    for (const QRegularExpressionMatch& match : link.globalMatch(PageText(page))) {
      const QUrl target = page.resolved(QUrl(match.captured(1)));
      SCOPED_TRACE((name + QStringLiteral(" -> ") + match.captured(1)).toStdString());
      ASSERT_EQ(target.scheme(), QStringLiteral("qrc"));
      ASSERT_TRUE(QFile::exists(QLatin1Char(':') + target.path()));
      if (!target.hasFragment()) continue;
      const QString anchor = QStringLiteral("id=\"%1\"").arg(target.fragment());
      EXPECT_TRUE(PageText(target).contains(anchor));
    }
  }
}

}  // namespace
}  // namespace renvale::platform
