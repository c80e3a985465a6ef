#pragma once

#include <QApplication>
#include <memory>

namespace quorix::bench {

/// The application object of a benchmark: Qt's software renderer, our engine, a network that always
/// answers without new texts, and our widgets' faces registered with Qt, so that the peers draw
/// with the same faces.
class BenchApplication {
 public:
  BenchApplication(int& argc, char** argv);

  /// Runs the event loop until the windows are at rest.
  static void settle();
  /// The processor time of the calling thread. Unlike wall-clock time, it does not include other
  /// work of the machine.
  static double threadSeconds();

 private:
  QApplication application_;
  std::shared_ptr<void> noNews_;
};

}  // namespace quorix::bench
