#include <gtest/gtest.h>

#include <QCoreApplication>

#include "TestEnvironment.h"

int main(int argc, char** argv) {
  renvale::test::IsolateUserFolders();
  QCoreApplication app(argc, argv);
  ::testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
