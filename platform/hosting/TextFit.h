#pragma once

#include "platform/hosting/ViewHost.h"

namespace quorix::hosting {

/// Finds the text size in which a sheet, which does not scroll, shows all its content. If the
/// user's text size makes the content taller than the largest sheet, or puts a text under an image
/// (the closing cross), the next smaller size that does not is used, down to the default. Main
/// thread.
class TextFit {
 public:
  explicit TextFit(ViewHost& content) : content_(content) {}

  /// The user's settings.
  void setEnvironment(const swiftui::Environment& environment);
  /// Starts again from the user's own size, for another window.
  void reset();
  /// The content may no longer fit.
  void contentChanged() { fits_ = false; }

  /// The scene of content at rest in `area` less `safeArea`, which could be `tallest` points high,
  /// in a text size at which it fits. Until the window changes, the size only decreases, so the
  /// iteration of size and height terminates.
  const render::Scene& scene(layout::Size area, const layout::EdgeInsets& safeArea, double tallest);

  /// Whether sizes are being tried: ignore the content's notifications meanwhile.
  bool isTrying() const { return trying_; }

 private:
  void fit(layout::Size area, const layout::EdgeInsets& safeArea, double tallest);

  ViewHost& content_;
  swiftui::Environment wanted_;
  bool trying_ = false;
  bool fits_ = false;
};

}  // namespace quorix::hosting
