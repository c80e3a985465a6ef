#pragma once

#include "platform/render/HostedContent.h"
#include "platform/swiftui/Elements.h"
#include "platform/swiftui/UIViewRepresentable.h"
#include "platform/swiftui/View.h"
#include "platform/webkit/WebContent.h"

namespace quorix::testing {

constexpr graphics::RGBA kPageGround{10, 200, 30, 255};
constexpr graphics::RGBA kControl{200, 10, 220, 255};

/// Hosted content: a page that fills the offered size, a square above it that closes it, and a hit
/// area below the page's left part, which takes taps where the page does not.
class PageContent final : public render::HostedContent {
 public:
  PageContent(std::shared_ptr<webkit::WebContent> page, std::function<void()> close)
      : page_(std::move(page)), close_(std::move(close)) {}

  layout::Size sizeThatFits(layout::ProposedSize offered, text::TextEngine&, double) override {
    return {offered.width.value_or(0), offered.height.value_or(0)};
  }

  render::Scene scene(layout::Size size, const render::Display&, text::TextEngine&) override {
    render::Scene scene;
    scene.size = size;
    const layout::Rect control{{size.width - 48, 40}, {48, 48}};
    scene.hitAreas.push_back({{{}, {200, size.height}}, close_});
    scene.hitAreas.push_back({control, close_});
    scene.items.push_back(render::EmbedItem{{{}, size}, page_, kPageGround, 0, 1});
    scene.items.push_back(render::FillItem{control, kControl});
    scene.accessibility.push_back({control, render::Role::button, "Close page", {}, close_});
    return scene;
  }

 private:
  std::shared_ptr<webkit::WebContent> page_;
  std::function<void()> close_;
};

/// A row that opens a sheet with a new page each time.
struct PageRow {
  static constexpr std::string_view typeName = "PageRow";

  std::function<std::shared_ptr<webkit::WebContent>()> make;
  swiftui::State<bool> shown{false};

  auto states() const { return std::tie(shown); }

  swiftui::View body() const {
    using namespace swiftui;
    const auto toggle = [binding = shown.binding()] { binding.toggle(); };
    const View page = represented(
        {"Page", [make = make, toggle] { return std::make_shared<PageContent>(make(), toggle); }});
    return View(Text::verbatim("Open page"))
        .accessibilityAddTraits(AccessibilityTrait::isButton)
        .accessibilityAction(toggle)
        .onTapGesture(toggle)
        .sheet(shown.binding(), page);
  }
};

}  // namespace quorix::testing
