#pragma once

#include <QColor>

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

  /// The item or widget that shows it; null once the toolkit has deleted it.
  virtual QObject* view() const = 0;
  bool isShown() const final { return view() != nullptr; }
};

}  // namespace quorix::qt
