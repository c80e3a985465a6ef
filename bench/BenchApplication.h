#pragma once

#include <QApplication>
#include <memory>

namespace quorix::bench {

/// The application object of a benchmark: Qt's software renderer, our engine, a network that has
/// nothing new to tell, and our widgets' faces known to Qt, so that the peers draw with the same
/// ones.
class BenchApplication {
 public:
  BenchApplication(int& argc, char** argv);

  /// Turns the event loop until windows have nothing left to do.
  static void settle();

 private:
  QApplication application_;
  std::shared_ptr<void> noNews_;
};

}  // namespace quorix::bench
