#pragma once

#include <QColor>
#include <QLoggingCategory>
#include <QString>

#include "platform/foundation/Export.h"
#include "platform/hosting/PageEngine.h"
#include "platform/webkit/WebContent.h"

class QObject;

namespace quorix::qt {

/// A page of Qt WebEngine. Keys that the page does not use go to its view's parent. Main thread.
class WebPage : public hosting::PageEngine {
 public:
  struct Options {
    webkit::WebContent::Settings settings;
    QColor background;  ///< until the page paints, where it has none, or if it cannot be loaded
  };

  /// The upper part of a page, between the rounded corners of a sheet.
  struct Top {
    double height = 0;      ///< takes no input; 0 for a page below the corners
    double radius = 0;      ///< of the corners
    double pixelRatio = 1;  ///< device pixels for each point
  };

  /// The item or widget that shows it; null once the toolkit has deleted it.
  virtual QObject* view() const = 0;
  /// Cuts the page's upper corners, which are at the top of its view.
  virtual void roundTop(const Top&) {}
  bool isShown() const final { return view() != nullptr; }
};

/// Opens a page for the window (Qt Quick) or the widget (Qt Widgets) `place`, to be made a child of
/// it. The caller owns the page. Null if the engine cannot show one; the log says why. `client`
/// outlives the page. Main thread.
///
/// The engine for each toolkit is in a library of its own, which exports this function: a host that
/// shows no page never loads it.
using OpenWebPage = WebPage* (*)(QObject& place, const WebPage::Options& options,
                                 WebPage::Client& client);
/// Change the number with `OpenWebPage`, `WebPage`, `hosting::PageEngine`, or a type in their
/// signatures.
constexpr char openWebPageSymbol[] = "quorixOpenWebPage7";

/// Finds the libraries that hold the web engine ("QuorixWebQuick", "QuorixWebWidgets") and loads
/// each on first use, for the rest of the process. Main thread.
///
/// Only folders of the program and of this library are searched, by absolute paths and in this
/// order:
///
/// 1. the program's folder, and "quorix" in it;
/// 2. if this code is in a shared library that was loaded by an absolute path: the library's
///    folder, and "quorix" in it;
/// 3. the folder where the libraries are installed, relative to a program under the same prefix;
/// 4. for a host that builds the library as part of its own build: that build's folder.
///
/// The current folder, the dynamic linker's search and Qt's plugin paths (QT_PLUGIN_PATH, qt.conf)
/// are not searched: others may write there, and their code must not run in the host.
///
/// Qt WebEngine needs this call before the application object is made:
///
///     QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
///
/// Without it a window that is drawn with OpenGL shows no page: the address is opened outside the
/// app instead.
namespace WebComponentLoader {

/// Whether there is a library of this name to load. Cheap: nothing is loaded.
QUORIX_EXPORT bool isThere(const QString& name);
/// Whether `load` found one before.
bool isLoaded(const QString& name);
/// The library's function, or null when the library is missing, does not load or is of another
/// version.
OpenWebPage load(const QString& name);

}  // namespace WebComponentLoader

/// Says why no page is shown. Silent unless the host's developer sets
/// QT_LOGGING_RULES="quorix.web.warning=true".
inline const QLoggingCategory& webLog() {
  static const QLoggingCategory category("quorix.web", QtCriticalMsg);
  return category;
}

}  // namespace quorix::qt
