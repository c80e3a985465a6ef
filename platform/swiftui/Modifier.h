#pragma once

#include <string>
#include <utility>

#include "platform/swiftui/LayoutPass.h"
#include "platform/swiftui/Node.h"
#include "platform/swiftui/View.h"

namespace quorix::swiftui {

/// A node that changes its content.
class Modifier : public Node {
 public:
  explicit Modifier(View content) : content_(std::move(content)) {}

  void print(TreePrinter& to, int depth) const final;

 protected:
  const View& content() const { return content_; }
  /// Its line in a printed tree: ".padding(16)".
  virtual std::string description() const = 0;
  /// Prints the modifier's other views, below its line.
  virtual void printBelow(TreePrinter&, int /*depth*/) const {}

 private:
  View content_;
};

/// A modifier that wraps each element of its content in an element of its own.
class LayoutModifier : public Modifier, public ElementRules {
 public:
  using Modifier::Modifier;

  void evaluate(Evaluator& in, const Look& look, ElementList& out) const override;

  /// Shows the wrapped element.
  void show(DisplayListBuilder& to, const Element& self) const override;
};

/// The rules of an element that is laid out exactly as its one child. `Base` is `ElementRules` or a
/// modifier.
template <class Base>
class Transparent : public Base {
 public:
  template <class... Arguments>
  explicit Transparent(Arguments&&... arguments) : Base(std::forward<Arguments>(arguments)...) {
    this->transparent_ = true;
  }

  layout::Size measure(LayoutPass& in, Element& self, layout::ProposedSize proposal) const final {
    return in.measure(self.child(), proposal);
  }
  void place(LayoutPass& in, Element& self, layout::ProposedSize proposal) const override {
    in.setFrame(self.child(), self.frame, proposal);
  }
  double leastWidth(LayoutPass& in, Element& self) const final {
    return in.leastWidth(self.child());
  }

 protected:
  ~Transparent() = default;
};

/// A modifier that does not change the layout of its content and adds to its display.
class Decoration : public Transparent<LayoutModifier> {
 public:
  using Transparent::Transparent;

  void evaluate(Evaluator& in, const Look& look, ElementList& out) const override;
  void show(DisplayListBuilder& to, const Element& self) const override = 0;
};

}  // namespace quorix::swiftui
