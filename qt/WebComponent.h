#pragma once

#include <memory>

#include "qt/WebPage.h"

namespace quorix::qt {

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
constexpr int webComponentVersion = 4;
constexpr char webComponentSymbol[] = "quorixWebComponent";

/// The component, or null when it is built for another version than `version`.
using WebComponentEntry = WebComponent* (*)(int version);

}  // namespace quorix::qt
