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

/// Applies a change to each element of its content.
template <class Change>
class ToEachElement final : public Decoration {
 public:
  ToEachElement(View content, Change change)
      : Decoration(std::move(content)), change_(std::move(change)) {}

  void show(DisplayListBuilder& to, const Element& self) const override {
    const std::size_t first = to.described();
    to.showChildren(self);
    for (AccessibilityElement& element : to.describedSince(first)) {
      change_.apply(element, to.environment.language);
    }
  }

 private:
  std::string description() const override { return change_.description(); }

  Change change_;
};

struct Traits {
  bool isButton;

  void apply(AccessibilityElement& element, const std::string&) const {
    element.role = isButton ? Role::button : Role::heading;
  }
  std::string description() const {
    return isButton ? ".accessibilityAddTraits(isButton)" : ".accessibilityAddTraits(isHeader)";
  }
};

struct Label {
  Text text;

  void apply(AccessibilityElement& element, const std::string& language) const {
    element.label = text.resolved(language);
  }
  std::string description() const { return ".accessibilityLabel(" + describe(text) + ")"; }
};

struct Hint {
  Text text;

  void apply(AccessibilityElement& element, const std::string& language) const {
    element.hint = text.resolved(language);
  }
  std::string description() const { return ".accessibilityHint(" + describe(text) + ")"; }
};

struct DefaultAction {
  Action action;

  void apply(AccessibilityElement& element, const std::string&) const {
    DisplayListBuilder::act(element, action);
  }
  std::string description() const { return ".accessibilityAction(default)"; }
};

template <class Change>
View changing(const View& content, Change change) {
  return makeView<ToEachElement<Change>>(content, std::move(change));
}

}  // namespace

View View::accessibilityElement(AccessibilityChildren) const {
  return makeView<IgnoredChildren>(*this);
}

View View::accessibilityAddTraits(AccessibilityTrait trait) const {
  return changing(*this, Traits{trait == AccessibilityTrait::isButton});
}

View View::accessibilityLabel(Text label) const { return changing(*this, Label{std::move(label)}); }

View View::accessibilityHint(Text hint) const { return changing(*this, Hint{std::move(hint)}); }

View View::accessibilityHidden(bool hidden) const { return makeView<Hidden>(*this, hidden); }

View View::accessibilityAction(Action action) const {
  return changing(*this, DefaultAction{std::move(action)});
}

}  // namespace quorix::swiftui
