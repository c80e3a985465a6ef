#pragma once

namespace quorix::qt {

/// Puts Qt under the platform's services: the main queue, the HTTP session, the faces that Qt has,
/// and the way out of the app for addresses.
///
/// The first view item does this; call it earlier to answer requests of your own, or where no view
/// item is made. Main thread, before or after the application object is made; every later call does
/// nothing.
///
///     QGuiApplication app(argc, argv);
///     quorix::qt::installEngine();
void installEngine();

}  // namespace quorix::qt
