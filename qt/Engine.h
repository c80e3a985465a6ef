#pragma once

namespace quorix::qt {

/// Puts Qt under the platform's services: the main queue, the HTTP session and the faces that Qt has.
///
/// Main thread, before or after the application object is made and before the first widget is
/// built; every later call does nothing.
///
///     QGuiApplication app(argc, argv);
///     quorix::qt::installEngine();
void installEngine();

}  // namespace quorix::qt
