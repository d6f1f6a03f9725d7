#include <gtest/gtest.h>

// Built twice: with RENVALE_TEST_GUI for the suites that make widgets.
#ifdef RENVALE_TEST_GUI
#include <QApplication>
using TestApplication = QApplication;
#else
#include <QCoreApplication>
using TestApplication = QCoreApplication;
#endif

#include "TestEnvironment.h"

int main(int argc, char** argv) {
  renvale::test::IsolateUserFolders();
  TestApplication app(argc, argv);
  ::testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
