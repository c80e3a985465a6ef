#pragma once

#include <optional>
#include <string>
#include <tuple>

#include "QuorixWidgets/overlay/WebView.h"
#include "platform/swiftui/Elements.h"
#include "platform/swiftui/View.h"

namespace quorix::testing {

/// A row that opens the library's own overlay.
struct OverlayRow {
  static constexpr std::string_view typeName = "OverlayRow";

  std::string locale;
  swiftui::State<bool> shown{false};

  auto states() const { return std::tie(shown); }

  swiftui::View body() const {
    using namespace swiftui;
    const auto toggle = [binding = shown.binding()] { binding.toggle(); };
    return View(Text::verbatim("Open overlay"))
        .accessibilityAddTraits(AccessibilityTrait::isButton)
        .accessibilityAction(toggle)
        .onTapGesture(toggle)
        .sheet(shown.binding(), View(WebView{shown.binding(), "Ann", std::nullopt, locale}));
  }
};

}  // namespace quorix::testing
