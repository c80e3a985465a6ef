#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <span>
#include <string>
#include <vector>

#include "platform/layout/Geometry.h"
#include "platform/render/HostedContent.h"
#include "platform/render/Scene.h"
#include "platform/swiftui/Environment.h"
#include "platform/swiftui/Evaluator.h"

namespace quorix::swiftui {

/// A view that wants to know its size, with its place in the tree.
struct WatchedSize {
  TreePath path;
  layout::Size size;
  std::function<void(layout::Size)> action;
};

/// Makes the display list of a laid-out evaluation: goes down through its elements, each of which
/// adds what it shows.
class DisplayListBuilder {
 public:
  /// `area`: what the evaluation was laid out in.
  DisplayListBuilder(Evaluation& evaluation, const Environment& settings, text::TextEngine& engine,
                     layout::Size area);

  void build();

  render::Scene list;
  std::vector<WatchedSize> geometry;  ///< the innermost first
  const Environment& environment;

  void showChildren(const Element& element);

  layout::Rect onPixels(const layout::Rect& frame) const { return grid_.round(frame); }
  /// `frame` as the reading direction has it. Frames of elements are mirrored already.
  layout::Rect mirrored(const layout::Rect& frame) const;

  /// Shows `content` in the frame of `element`.
  void host(render::HostedContent& content, const Element& element);

  // What assistive technology meets.

  /// Adds an element of `role`. Null where its words are not wanted: what stands further out has
  /// its own.
  render::AccessibilityElement* describe(render::Role role, const layout::Rect& frame);
  std::size_t described() const { return list.accessibility.size(); }
  std::span<render::AccessibilityElement> describedSince(std::size_t first) {
    return std::span(list.accessibility).subspan(first);
  }
  /// Shows the children, whose words are not wanted.
  void showChildrenUnnamed(const Element& element);

  static bool isNamed(const render::AccessibilityElement& element);
  /// Makes `element` do `action` as a button does. The innermost action is the one.
  static void act(render::AccessibilityElement& element, const foundation::Action& action);

  /// An image of a bundle's asset catalog; null without one.
  struct NamedImage {
    const foundation::Bundle* bundle = nullptr;
    const std::string* name = nullptr;
  };
  /// Shows a button's label. Returns the first image in it.
  NamedImage showLabel(const Element& button);
  void showedImage(const foundation::Bundle& bundle, const std::string& name);

 private:
  Evaluation& evaluation_;
  render::Display display_;
  text::TextEngine& engine_;
  layout::PixelGrid grid_;
  double width_;
  int unnamed_ = 0;                   // enclosing elements that have words of their own
  NamedImage* labelImage_ = nullptr;  // of the button whose label is shown
};

}  // namespace quorix::swiftui
