#pragma once

#include <QCoreApplication>
#include <QGuiApplication>

namespace quorix::qt {

/// Null without a `QGuiApplication`. `qGuiApp` is not null for a plain `QCoreApplication`. Any
/// thread.
inline QGuiApplication* guiApplication() {
  return qobject_cast<QGuiApplication*>(QCoreApplication::instance());
}

/// The process's one `T`, made on first use. It is destroyed with the application object, after
/// which Qt cannot free fonts and images any more. Main thread.
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
