#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <vector>

#include "platform/layout/Geometry.h"
#include "platform/render/HostedContent.h"
#include "platform/render/Scene.h"
#include "platform/swiftui/Environment.h"
#include "platform/swiftui/Evaluator.h"
#include "platform/swiftui/State.h"

namespace quorix::swiftui {

/// A view that observes its size.
struct WatchedSize {
  /// The size of the latest call of `action`.
  using Told = StateBox<std::optional<layout::Size>>;

  std::shared_ptr<Told> told;
  layout::Size size;
  std::function<void(layout::Size)> action;
};

/// Makes the display list of a laid-out evaluation. Visits its elements; each adds its items.
class DisplayListBuilder {
 public:
  /// `area`: the size in which the evaluation was laid out.
  DisplayListBuilder(Evaluation& evaluation, const Environment& settings, text::TextEngine& engine,
                     layout::Size area);

  void build();

  render::Scene list;
  std::vector<WatchedSize> geometry;  ///< the innermost first
  const Environment& environment;

  void showChildren(const Element& element);

  layout::Rect onPixels(const layout::Rect& frame) const { return grid_.round(frame); }
  /// `frame` in the reading direction. Do not call it for frames of elements: those are mirrored
  /// already.
  layout::Rect mirrored(const layout::Rect& frame) const;

  /// Adds the display list of `content` in the frame of `element`.
  void host(render::HostedContent& content, const Element& element);

  // Assistive technology.

  /// Adds an element with `role`. Returns it, so that the caller sets its texts, or null if an
  /// enclosing element provides the texts.
  render::AccessibilityElement* describe(render::Role role, const layout::Rect& frame);
  std::size_t described() const { return list.accessibility.size(); }
  std::span<render::AccessibilityElement> describedSince(std::size_t first) {
    return std::span(list.accessibility).subspan(first);
  }
  /// Shows the children without their texts for assistive technology.
  void showChildrenUnnamed(const Element& element);

  static bool isNamed(const render::AccessibilityElement& element);
  /// Gives `element` the action and the role of a button. Keeps an existing action, because the
  /// innermost one counts.
  static void act(render::AccessibilityElement& element, const foundation::Action& action);

 private:
  Evaluation& evaluation_;
  render::Display display_;
  text::TextEngine& engine_;
  layout::PixelGrid grid_;
  double width_;
  int unnamed_ = 0;  // enclosing elements that provide the texts
};

}  // namespace quorix::swiftui
