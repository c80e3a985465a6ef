#pragma once

#include <QColor>
#include <QLoggingCategory>
#include <QString>
#include <memory>

#include "platform/foundation/Export.h"
#include "platform/hosting/PageEngine.h"
#include "platform/webkit/WebContent.h"

class QObject;

namespace quorix::qt {

/// A page of Qt WebEngine, made by a `WebComponent`. Keys that the page does not use go to its
/// view's parent. Main thread.
class WebPage : public hosting::PageEngine {
 public:
  struct Options {
    webkit::WebContent::Settings settings;
    QColor background;  ///< shows where the page has not painted, has none, or could not be loaded
  };

  /// The upper part of a page, between the rounded corners of a sheet.
  struct Top {
    double height = 0;      ///< which only shows, under what takes input; 0 below the corners
    double radius = 0;      ///< of the corners
    double pixelRatio = 1;  ///< device pixels for each point
  };

  /// The item or widget that shows it; null once the toolkit has deleted it.
  virtual QObject* view() const = 0;
  /// Cuts the page's upper corners, which are at the top of its view.
  virtual void roundTop(const Top&) {}
  bool isShown() const final { return view() != nullptr; }
};

/// The web engine for one toolkit, in a library of its own: a host that shows no page never loads
/// it. The library exports `webComponentSymbol`, a `WebComponentEntry`. Main thread.
class WebComponent {
 public:
  /// Opens a page for the window (Qt Quick) or the widget (Qt Widgets) `place`, to be made a child
  /// of it. Null where the engine cannot show one; it has then said why on the log. `client`
  /// outlives the page.
  virtual std::unique_ptr<WebPage> open(QObject& place, const WebPage::Options& options,
                                        WebPage::Client& client) = 0;

 protected:
  ~WebComponent() = default;  // lives with the application
};

/// Another number whenever `WebComponent`, `WebPage` or `hosting::PageEngine` is another.
constexpr int webComponentVersion = 6;
constexpr char webComponentSymbol[] = "quorixWebComponent";

/// The component, or null when it is built for another version than `version`.
using WebComponentEntry = WebComponent* (*)(int version);

/// Finds the libraries that hold the web engine ("QuorixWebQuick", "QuorixWebWidgets") and loads
/// each on first use, for the rest of the process. Main thread.
///
/// Only folders of the program and of this library are searched, by absolute paths and in this
/// order:
///
/// 1. the program's folder, and "quorix" in it;
/// 2. where this code is in a shared library: the library's folder, and "quorix" in it. A library
///    that was loaded by a relative path counts as nowhere;
/// 3. where the libraries are installed, as seen from a program under the same prefix;
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
/// The component, or null when it is missing, does not load or is of another version.
WebComponent* load(const QString& name);

}  // namespace WebComponentLoader

/// Why no page is shown, for those who ship the engine. Silent unless the host's developer asks
/// with QT_LOGGING_RULES="quorix.web.warning=true".
inline const QLoggingCategory& webLog() {
  static const QLoggingCategory category("quorix.web", QtCriticalMsg);
  return category;
}

}  // namespace quorix::qt
