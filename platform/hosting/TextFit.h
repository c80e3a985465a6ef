#pragma once

#include "platform/hosting/ViewHost.h"

namespace quorix::hosting {

/// Keeps a sheet's content whole. A sheet does not scroll: where the user's text size makes its
/// content taller than the largest sheet, or puts a text under a picture that lies on top (the
/// cross that closes it), the content is shown in the next smaller text size that does not, down to
/// the default. Whatever fits stays as the user has it. Main thread.
class TextFit {
 public:
  explicit TextFit(ViewHost& content) : content_(content) {}

  /// The user's settings.
  void setEnvironment(const swiftui::Environment& environment);
  /// Begins again with the user's own size, for another window.
  void reset();
  /// The content may no longer fit.
  void contentChanged() { fits_ = false; }

  /// The scene of content at rest in `area` less `safeArea`, which could be `tallest` points high,
  /// in a text size at which it fits. While the window stays as it is the size is only ever
  /// lowered: a sheet asks for its height anew after each change, and that has to come to an end.
  const render::Scene& scene(layout::Size area, const layout::EdgeInsets& safeArea, double tallest);

  /// A text size is being tried out: what the content has to say of that is no news.
  bool isTrying() const { return trying_; }

 private:
  void fit(layout::Size area, const layout::EdgeInsets& safeArea, double tallest);

  ViewHost& content_;
  swiftui::Environment wanted_;
  bool trying_ = false;
  bool fits_ = false;
};

}  // namespace quorix::hosting
