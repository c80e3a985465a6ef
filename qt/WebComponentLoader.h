#pragma once

#include <QString>
#include <QStringList>

#include "platform/foundation/Export.h"

namespace quorix::qt {

class WebComponent;

/// Finds the libraries that hold the web engine ("QuorixWebQuick", "QuorixWebWidgets") and loads
/// each on first use, for the rest of the process. Main thread.
///
/// They are looked for beside the program and in a folder "quorix" there, in a folder "quorix" in
/// each of `QCoreApplication::libraryPaths()`, beside the library or program that holds this code
/// and in a folder "quorix" there, and where they are when both are installed under one prefix.
///
/// Qt WebEngine wants its host to say, before the application object is made,
///
///     QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
///
/// Without it a page still comes up wherever the window is not drawn with OpenGL; where it is, its
/// address is opened outside the app instead.
namespace WebComponentLoader {

/// Whether there is a library of this name to load. Cheap: nothing is loaded.
QUORIX_EXPORT bool isThere(const QString& name);
/// The component, or null when it is missing, does not load or is of another version.
WebComponent* load(const QString& name);

/// Where they are looked for, in order.
QStringList folders();

}  // namespace WebComponentLoader
}  // namespace quorix::qt
