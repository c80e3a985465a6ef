#include <gtest/gtest.h>

#include <QApplication>

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  // Pictures are compared, so they must not depend on a graphics driver.
  if (qEnvironmentVariableIsEmpty("QT_QUICK_BACKEND")) qputenv("QT_QUICK_BACKEND", "software");
  // On the heap, so that a test of the application's end (in its own process) can delete it.
  new QApplication(argc, argv);
  const int result = RUN_ALL_TESTS();
  delete QCoreApplication::instance();
  return result;
}
