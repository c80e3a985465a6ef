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

  /// The upper part of a page, between the rounded corners of a sheet.
  struct Top {
    double height = 0;      ///< where the page takes no input; 0 for a page below the corners
    double radius = 0;      ///< of the corners
    double pixelRatio = 1;  ///< device pixels for each point
    bool operator==(const Top&) const = default;
  };

  /// The item or widget that shows it; null once the toolkit has deleted it.
  virtual QObject* view() const = 0;
  /// Cuts the page's upper corners, which are at the top of its view.
  virtual void roundTop(const Top&) {}
  bool isShown() const final { return view() != nullptr; }
};

}  // namespace quorix::qt
