#pragma once

#include <QCoreApplication>

namespace quorix::qt {

/// The process's one `T`, made on first use and destroyed with the application object, while the
/// fonts and images that it holds may still be given back. Main thread.
template <class T>
T& applicationLifetime() {
  static T* instance = nullptr;
  if (instance == nullptr) {
    instance = new T;
    qAddPostRoutine([] {
      delete instance;
      instance = nullptr;
    });
  }
  return *instance;
}

}  // namespace quorix::qt
