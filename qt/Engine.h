#pragma once

#include "platform/foundation/Export.h"

namespace quorix::qt {

/// Installs Qt as the engine of the platform's services: the main queue, the HTTP session, the
/// installed faces, and the opening of addresses outside the app.
///
/// The first view item does this. Call it earlier to fetch texts before that, to answer requests
/// yourself, or without a view item. Main thread, before or after the application object is made;
/// later calls do nothing.
///
/// Web pages in sheets are shown by Qt WebEngine, which is loaded with the first of them. It needs
/// one line before the application object is made:
///
///     QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
///
/// Without it, pages in Qt Quick windows that use OpenGL open outside the app. All pages do if the
/// engine or its component is missing.
///
///     quorix::qt::installEngine();  // before `prefetch`
QUORIX_EXPORT void installEngine();

}  // namespace quorix::qt
