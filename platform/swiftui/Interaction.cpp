// The modifiers that run actions: on a tap, when the view appears, and when its size changed.
#include <algorithm>
#include <functional>
#include <memory>
#include <span>
#include <string>
#include <utility>
#include <variant>

#include "platform/foundation/StringTable.h"
#include "platform/swiftui/DisplayListBuilder.h"
#include "platform/swiftui/Elements.h"
#include "platform/swiftui/Evaluator.h"
#include "platform/swiftui/Modifier.h"
#include "platform/swiftui/TreePrinter.h"

namespace quorix::swiftui {
namespace {

using foundation::Action;
using render::AccessibilityElement;
using render::ImageItem;

class TapGesture final : public Decoration {
 public:
  TapGesture(View content, Action action)
      : Decoration(std::move(content)), action_(std::move(action)) {}

  void evaluate(Evaluator& in, const Look& look, ElementList& out) const override {
    ++in.result().hitAreas;
    Decoration::evaluate(in, look, out);
  }

  void show(DisplayListBuilder& to, const Element& self) const override {
    // Add this area first: areas inside and on top of it come later and win.
    to.list.hitAreas.push_back({to.onPixels(self.frame), action_});
    const std::size_t first = to.described();
    to.showChildren(self);
    // If any element has a text, the elements without one do not get the action.
    const auto below = to.describedSince(first);
    const bool anyNamed = std::any_of(below.begin(), below.end(), DisplayListBuilder::isNamed);
    for (AccessibilityElement& child : below) {
      if (!anyNamed || DisplayListBuilder::isNamed(child)) DisplayListBuilder::act(child, action_);
    }
  }

 private:
  std::string description() const override { return ".onTapGesture(count: 1)"; }

  Action action_;
};

/// The platform's color of buttons and links.
const Color& accentColor(graphics::Appearance appearance) {
  static const Color light = Color::fixed({0, 122, 255});
  static const Color dark = Color::fixed({10, 132, 255});
  return appearance == graphics::Appearance::dark ? dark : light;
}

/// A button is an element with one child, its label.
class ButtonNode final : public Node, public Transparent<ElementRules> {
 public:
  ButtonNode(Action action, View label) : label_(std::move(label)), action_(std::move(action)) {}

  void print(TreePrinter& to, int depth) const override {
    to.line(depth, "Button");
    to.print(label_, depth + 1);
  }

  void evaluate(Evaluator& in, const Look& look, ElementList& out) const override {
    Look inner = look;
    if (!inner.color) inner.color = &accentColor(in.environment.appearance);
    ++in.result().hitAreas;
    auto* button = in.make<Element>(static_cast<const ElementRules&>(*this));
    in.adopt(*button, in.single(label_, inner));
    out.append(button);
  }

  void show(DisplayListBuilder& to, const Element& self) const override {
    const layout::Rect frame = to.onPixels(self.frame);
    to.list.hitAreas.push_back({frame, action_});
    const std::size_t first = to.described();
    const std::size_t firstItem = to.list.items.size();
    to.showChildren(self);
    std::string words;
    for (const AccessibilityElement& part : to.describedSince(first)) {
      if (!words.empty() && !part.label.empty()) words += ", ";
      words += part.label;
    }
    const auto shown = std::span(to.list.items).subspan(firstItem);
    const auto image = std::ranges::find_if(shown, [](const render::Item& item) {
      const auto* found = std::get_if<ImageItem>(&item);
      return found && found->bundle;
    });
    if (words.empty() && image != shown.end()) {
      const auto& found = std::get<ImageItem>(*image);
      words = foundation::spokenName(*found.bundle, found.name, to.environment.language);
    }
    to.list.accessibility.resize(first);
    to.list.accessibility.push_back({frame, render::Role::button, std::move(words), {}, action_});
  }

 private:
  View label_;
  Action action_;
};

class Task final : public Modifier {
 public:
  Task(View content, Action action) : Modifier(std::move(content)), action_(std::move(action)) {}

  void evaluate(Evaluator& in, const Look& look, ElementList& out) const override {
    in.at(steps::modified, [&] {
      in.result().tasks.push_back(
          {TreePath(in.path(), in.result().tasks.get_allocator()), action_});
      in.collect(content(), look, out);
    });
  }

 private:
  std::string description() const override { return ".task(priority: userInitiated)"; }

  Action action_;
};

struct WatchedElement final : Element {
  using Element::Element;

  std::shared_ptr<WatchedSize::Told> told;
};

class GeometryChange final : public Decoration {
 public:
  GeometryChange(View content, std::function<void(layout::Size)> action)
      : Decoration(std::move(content)), action_(std::move(action)) {}

  void evaluate(Evaluator& in, const Look& look, ElementList& out) const override {
    std::shared_ptr<Kept>* kept = nullptr;  // one for each element
    const auto adapt = [&](WatchedElement& self) {
      self.isText = self.child().isText;
      kept = kept ? &(*kept)->next : &in.states().first;
      if (!*kept) *kept = std::make_shared<WatchedSize::Told>(std::nullopt);
      self.told = std::static_pointer_cast<WatchedSize::Told>(*kept);
    };
    in.at(steps::modified,
          [&] { in.wrapEach<WatchedElement>(content(), look, out, adapt, *this); });
  }

  void show(DisplayListBuilder& to, const Element& self) const override {
    to.showChildren(self);
    to.geometry.push_back(
        {static_cast<const WatchedElement&>(self).told, self.frame.size, action_});
  }

 private:
  std::string description() const override { return ".onGeometryChange(size)"; }

  std::function<void(layout::Size)> action_;
};

}  // namespace

View View::onTapGesture(Action action) const {
  return makeView<TapGesture>(*this, std::move(action));
}

View Button(Action action, View label) {
  return makeView<ButtonNode>(std::move(action), std::move(label));
}

View View::task(TaskPriority, Action action) const {
  return makeView<Task>(*this, std::move(action));
}

View View::onGeometryChange(std::function<void(layout::Size)> action) const {
  return makeView<GeometryChange>(*this, std::move(action));
}

}  // namespace quorix::swiftui
