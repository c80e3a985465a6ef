#pragma once

#include "platform/foundation/Export.h"

namespace quorix::qt {

/// Puts Qt under the platform's services: the main queue, the HTTP session, the faces that Qt has,
/// and the way out of the app for addresses.
///
/// The first view item does this; call it earlier to fetch texts before it, to answer requests of
/// your own, or where no view item is made. Main thread, before or after the application object is
/// made; every later call does nothing.
///
/// Sheets with a page of the web have Qt WebEngine show it, which is loaded with the first of them.
/// The engine wants one line before the application object is made:
///
///     QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
///
/// Without it, pages in Qt Quick windows that are drawn with OpenGL are opened outside the app
/// instead; so they all are where the engine or its component is missing.
///
///     quorix::qt::installEngine();  // early, for what `prefetch` asks for
QUORIX_EXPORT void installEngine();

}  // namespace quorix::qt
