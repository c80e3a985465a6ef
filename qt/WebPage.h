#pragma once

#include <QColor>
#include <QUrl>
#include <functional>

#include "platform/webkit/WebContent.h"

class QObject;

namespace quorix::qt {

/// A page on show, made by a `WebComponent`. Destroying it takes it off the screen and ends what it
/// was loading. Main thread.
class WebPage {
 public:
  struct Options {
    webkit::WebContent::Settings settings;
    QColor background;  ///< shows where the page has not painted, has none, or could not be loaded
    /// The page asks for a new window with this address, which may be empty. It gets none.
    std::function<void(const QUrl&)> onNewWindow;
  };

  virtual ~WebPage() = default;

  /// The item or widget that shows it; null once somebody else has deleted it. Keys that the page
  /// does not use go to its parent.
  virtual QObject* view() const = 0;
  virtual void load(const QUrl& address) = 0;
  virtual bool canGoBack() const = 0;
  virtual void goBack() = 0;
  virtual void goForward() = 0;
};

}  // namespace quorix::qt
