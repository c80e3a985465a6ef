#include <gtest/gtest.h>

#include <QGuiApplication>

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  // On the heap, so that a test about the application's end (in a process of its own) can end it.
  new QGuiApplication(argc, argv);
  const int result = RUN_ALL_TESTS();
  delete QCoreApplication::instance();
  return result;
}
