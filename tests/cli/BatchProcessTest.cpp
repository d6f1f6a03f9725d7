#include <gtest/gtest.h>

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

namespace {

struct Result {
  int status = -1;
  QString out, err;
};

// The installed program's build, run as a script would run it: in the
// card's folder, with a home of its own and no display.
Result RunBatch(const QString& folder, const QStringList& args) {
  QProcess process;
  QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
  env.insert(QStringLiteral("HOME"), folder + QStringLiteral("/.home"));
  env.remove(QStringLiteral("XDG_CONFIG_HOME"));
  env.remove(QStringLiteral("XDG_STATE_HOME"));
  env.remove(QStringLiteral("DISPLAY"));
  env.remove(QStringLiteral("WAYLAND_DISPLAY"));
  process.setProcessEnvironment(env);
  process.setWorkingDirectory(folder);
  process.start(QStringLiteral(RENVALE_BATCH_PATH), args);
  process.waitForFinished(60000);
  return {process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1,
          QString::fromUtf8(process.readAllStandardOutput()), QString::fromUtf8(process.readAllStandardError())};
}

TEST(BatchProcess, StatusAndOutputOfWholeRuns) {
  QTemporaryDir dir;
  const QString card = dir.path();
  for (const char* name : {"IMG_0002.JPG", "IMG_0001.JPG"}) {
    QFile file(card + '/' + name);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  }
  const Result help = RunBatch(card, {QStringLiteral("--help")});
  EXPECT_EQ(help.status, 0);
  EXPECT_TRUE(help.out.startsWith(QStringLiteral("Usage: renvale-batch --name BASE")));

  // The window's settings file: series numbers of three digits.
  QDir().mkpath(card + QStringLiteral("/.home/.config/MorventSoftware"));
  QFile conf(card + QStringLiteral("/.home/.config/MorventSoftware/Renvale.conf"));
  ASSERT_TRUE(conf.open(QIODevice::WriteOnly));
  conf.write("[General]\nPlaceholders=3\n");
  conf.close();
  const Result run = RunBatch(card, {QStringLiteral("--name"), QStringLiteral("Card %SERIES%"),
                                     QStringLiteral("IMG_0002.JPG"), QStringLiteral("IMG_0001.JPG")});
  EXPECT_EQ(run.status, 0) << run.err.toStdString();
  EXPECT_EQ(run.out, QStringLiteral("IMG_0002.JPG \u2192 Card 001.JPG\nIMG_0001.JPG \u2192 Card 002.JPG\n"));
  EXPECT_TRUE(QFile::exists(card + QStringLiteral("/Card 002.JPG")));
}

}  // namespace
