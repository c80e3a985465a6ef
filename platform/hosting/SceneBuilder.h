#pragma once

#include <functional>

#include "platform/layout/PixelGrid.h"
#include "platform/render/Scene.h"
#include "platform/swiftui/Environment.h"
#include "platform/swiftui/Evaluation.h"

namespace quorix::hosting {

/// Turns a laid-out evaluation into the scene that surfaces paint.
class SceneBuilder {
 public:
  /// Told of each element that wants to know its size, with its place in the tree.
  using GeometryVisitor = std::function<void(const swiftui::TreePath&, layout::Size,
                                             const std::function<void(layout::Size)>& action)>;

  SceneBuilder(const swiftui::Evaluation& evaluation, const swiftui::Environment& environment,
               text::TextEngine& engine, GeometryVisitor visitGeometry);

  render::Scene build();

 private:
  struct Decorator;
  using Accessibility = std::vector<render::AccessibilityElement>;

  /// Adds the items and hit areas of `element` and all below it; returns what assistive technology
  /// meets there.
  Accessibility add(const layout::Element& element);
  Accessibility addChildren(const layout::Element& element);
  void paint(const layout::Element& element);
  Accessibility describe(const layout::Element& element) const;
  Accessibility host(render::HostedContent& content, const layout::Element& element);
  /// What a button is called: all that its label says, or else what it shows.
  std::string buttonLabel(const layout::Element& label, const Accessibility& below) const;
  Accessibility decorate(const swiftui::Decoration& decoration, const layout::Element& element);

  const swiftui::Evaluation& evaluation_;
  render::Display display_;
  text::TextEngine& engine_;
  GeometryVisitor visitGeometry_;
  layout::PixelGrid grid_;
  render::Scene scene_;
};

}  // namespace quorix::hosting
