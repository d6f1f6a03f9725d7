#pragma once

#include <gtest/gtest.h>

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QThread>

// A folder of numbered files, each with contents of its own, and a child
// process that renames them and writes one byte to stdout as it begins.
namespace renvale::test {

constexpr int kFiles = 1000;

inline QString OldName(int i) { return QString::asprintf("f%04d.dat", i); }
inline QByteArray Contents(int i) { return QByteArray::number(i * 7919).repeated(1 + i % 5); }

inline void MakeFiles(const QString& folder) {
  QDir().mkpath(folder);
  for (int i = 0; i < kFiles; ++i) {
    QFile file(folder + '/' + OldName(i));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(Contents(i)) == Contents(i).size());
  }
}

// Returns once the child has begun renaming.
inline void StartVictim(QProcess& victim, const QString& program, const QStringList& arguments) {
  victim.start(program, arguments);
  ASSERT_TRUE(victim.waitForStarted(5000));
  ASSERT_TRUE(victim.waitForReadyRead(5000));
}

// An undisturbed run, to learn how long the renames take (microseconds).
inline qint64 WholeRunMicros(const QString& program, const QStringList& arguments) {
  QProcess whole;
  StartVictim(whole, program, arguments);
  QElapsedTimer clock;
  clock.start();
  EXPECT_TRUE(whole.waitForFinished(20000));
  EXPECT_EQ(whole.exitCode(), 0) << whole.readAllStandardError().toStdString();
  return clock.nsecsElapsed() / 1000;
}

inline void KillAfter(const QString& program, const QStringList& arguments, qint64 micros) {
  QProcess victim;
  StartVictim(victim, program, arguments);
  QThread::usleep(static_cast<unsigned long>(micros));
  victim.kill();
  ASSERT_TRUE(victim.waitForFinished(5000));
}

}  // namespace renvale::test
