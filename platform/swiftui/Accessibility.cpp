// The modifiers for assistive technology.
#include <algorithm>
#include <string>
#include <utility>

#include "platform/swiftui/DisplayListBuilder.h"
#include "platform/swiftui/Modifier.h"
#include "platform/swiftui/TreePrinter.h"

namespace quorix::swiftui {
namespace {

using foundation::Action;
using render::AccessibilityElement;
using render::Role;

/// Replaces the content's elements by one. It stays a heading if the content has one, so that users
/// can still navigate to it by heading.
class IgnoredChildren final : public Decoration {
 public:
  using Decoration::Decoration;

  void show(DisplayListBuilder& to, const Element& self) const override {
    const std::size_t first = to.described();
    to.showChildrenUnnamed(self);
    const auto below = to.describedSince(first);
    const bool heading =
        std::any_of(below.begin(), below.end(),
                    [](const AccessibilityElement& child) { return child.role == Role::heading; });
    to.list.accessibility.resize(first);
    to.describe(heading ? Role::heading : Role::staticText, to.onPixels(self.frame));
  }

 private:
  std::string description() const override { return ".accessibilityElement(children: ignore)"; }
};

class AddTraits final : public Decoration {
 public:
  AddTraits(View content, AccessibilityTrait trait)
      : Decoration(std::move(content)), isButton_(trait == AccessibilityTrait::isButton) {}

  void show(DisplayListBuilder& to, const Element& self) const override {
    const std::size_t first = to.described();
    to.showChildren(self);
    for (auto& child : to.describedSince(first))
      child.role = isButton_ ? Role::button : Role::heading;
  }

 private:
  std::string description() const override {
    return isButton_ ? ".accessibilityAddTraits(isButton)" : ".accessibilityAddTraits(isHeader)";
  }

  bool isButton_;
};

class Label final : public Decoration {
 public:
  Label(View content, Text text) : Decoration(std::move(content)), text_(std::move(text)) {}

  void show(DisplayListBuilder& to, const Element& self) const override {
    const std::size_t first = to.described();
    to.showChildren(self);
    for (auto& child : to.describedSince(first))
      child.label = text_.resolved(to.environment.language);
  }

 private:
  std::string description() const override {
    return ".accessibilityLabel(" + describe(text_) + ")";
  }

  Text text_;
};

class Hint final : public Decoration {
 public:
  Hint(View content, Text text) : Decoration(std::move(content)), text_(std::move(text)) {}

  void show(DisplayListBuilder& to, const Element& self) const override {
    const std::size_t first = to.described();
    to.showChildren(self);
    for (auto& child : to.describedSince(first))
      child.hint = text_.resolved(to.environment.language);
  }

 private:
  std::string description() const override { return ".accessibilityHint(" + describe(text_) + ")"; }

  Text text_;
};

class Hidden final : public Decoration {
 public:
  Hidden(View content, bool hidden) : Decoration(std::move(content)), hidden_(hidden) {}

  void show(DisplayListBuilder& to, const Element& self) const override {
    const std::size_t first = to.described();
    to.showChildren(self);
    if (hidden_) to.list.accessibility.resize(first);
  }

 private:
  std::string description() const override {
    return ".accessibilityHidden(" + std::string(nameOf(hidden_)) + ")";
  }

  bool hidden_;
};

class AccessibilityAction final : public Decoration {
 public:
  AccessibilityAction(View content, Action action)
      : Decoration(std::move(content)), action_(std::move(action)) {}

  void show(DisplayListBuilder& to, const Element& self) const override {
    const std::size_t first = to.described();
    to.showChildren(self);
    for (auto& child : to.describedSince(first)) DisplayListBuilder::act(child, action_);
  }

 private:
  std::string description() const override { return ".accessibilityAction(default)"; }

  Action action_;
};

}  // namespace

View View::accessibilityElement(AccessibilityChildren) const {
  return makeView<IgnoredChildren>(*this);
}

View View::accessibilityAddTraits(AccessibilityTrait trait) const {
  return makeView<AddTraits>(*this, trait);
}

View View::accessibilityLabel(Text label) const { return makeView<Label>(*this, std::move(label)); }

View View::accessibilityHint(Text hint) const { return makeView<Hint>(*this, std::move(hint)); }

View View::accessibilityHidden(bool hidden) const { return makeView<Hidden>(*this, hidden); }

View View::accessibilityAction(Action action) const {
  return makeView<AccessibilityAction>(*this, std::move(action));
}

}  // namespace quorix::swiftui
