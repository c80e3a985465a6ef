#pragma once

#include "platform/combine/ObservableObject.h"
#include "platform/swiftui/Elements.h"
#include "platform/swiftui/View.h"

namespace quorix::testing {

inline swiftui::View paragraph() {
  return swiftui::Text::verbatim("A sentence that needs two lines or more when the room is narrow");
}

struct FeeModel : combine::ObservableObject {
  explicit FeeModel(std::string text) : fee(*this, std::move(text)) {}
  combine::Published<std::string> fee;
};

/// Shows its model's text and counts its evaluations.
struct Watched {
  static constexpr std::string_view typeName = "Watched";

  explicit Watched(std::string text, std::shared_ptr<int> evaluations = std::make_shared<int>(0))
      : model(std::make_shared<FeeModel>(std::move(text))), bodies(std::move(evaluations)) {}

  std::shared_ptr<FeeModel> model;
  std::shared_ptr<int> bodies;

  auto observed() const { return std::tie(model); }
  swiftui::View body() const { return ++*bodies, swiftui::Text::verbatim(std::string(model->fee)); }
};

/// A row with one button. It opens a sheet with a line of text, an element that closes it, and one
/// with the test's action.
struct FeeRow {
  static constexpr std::string_view typeName = "FeeRow";

  explicit FeeRow(std::string fee) : model(std::make_shared<FeeModel>(std::move(fee))) {}

  std::shared_ptr<FeeModel> model;
  std::function<void()> terms = [] {};  ///< what a tap on "Terms" does
  swiftui::State<bool> shown{false};

  auto states() const { return std::tie(shown); }
  auto observed() const { return std::tie(model); }

  swiftui::View body() const {
    using namespace swiftui;
    const auto toggle = [binding = shown.binding()] { binding.toggle(); };
    const std::string& fee = model->fee;
    const View sheet = VStack(layout::HorizontalAlignment::center, 0,
                              {Text::verbatim("Fee " + fee),
                               View(Text::verbatim("X"))
                                   .onTapGesture(toggle)
                                   .accessibilityLabel(Text::verbatim("Close " + fee)),
                               View(Text::verbatim("Terms")).onTapGesture(terms)})
                           .presentationDetents({PresentationDetent::height(200)});
    return HStack(layout::VerticalAlignment::center, 12,
                  {Text::verbatim("Return fee"), Spacer(), Text::verbatim(fee)})
        .accessibilityElement(AccessibilityChildren::ignore)
        .accessibilityAddTraits(AccessibilityTrait::isButton)
        .accessibilityLabel(Text::verbatim("Row " + fee))
        .accessibilityHint(Text::verbatim("Opens details"))
        .accessibilityAction(toggle)
        .onTapGesture(toggle)
        .sheet(shown.binding(), sheet);
  }
};

/// A button that presents a sheet.
struct Opener {
  static constexpr std::string_view typeName = "Opener";
  swiftui::View content;
  swiftui::State<bool> shown{false};

  auto states() const { return std::tie(shown); }
  swiftui::View body() const {
    return swiftui::View(swiftui::Text::verbatim("More"))
        .onTapGesture([binding = shown.binding()] { binding.toggle(); })
        .sheet(shown.binding(), content);
  }
};

}  // namespace quorix::testing
