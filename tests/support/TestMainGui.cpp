#include <gtest/gtest.h>

#include <QApplication>

#include "TestEnvironment.h"

int main(int argc, char** argv) {
  renvale::test::IsolateUserFolders();
  QApplication app(argc, argv);
  ::testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
