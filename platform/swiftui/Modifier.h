#pragma once

#include <string>
#include <utility>

#include "platform/swiftui/Node.h"
#include "platform/swiftui/View.h"

namespace quorix::swiftui {

/// A node that changes what it holds.
class Modifier : public Node {
 public:
  explicit Modifier(View content) : content_(std::move(content)) {}

  void print(TreePrinter& to, int depth) const final;

 protected:
  const View& content() const { return content_; }
  /// ".padding(16)".
  virtual std::string description() const = 0;
  /// What the modifier holds besides its content, below its line.
  virtual void printBelow(TreePrinter&, int /*depth*/) const {}

 private:
  View content_;
};

/// A modifier that wraps each element of its content in one of its own.
class LayoutModifier : public Modifier, public ElementRules {
 public:
  using Modifier::Modifier;

  void evaluate(Evaluator& in, const Look& look, layout::Axis axis,
                ElementList& out) const override;

  /// Shows what it wraps.
  void show(DisplayListBuilder& to, const Element& self) const override;
};

/// The rules of an element that is laid out as its one child is.
class Transparent : public ElementRules {
 public:
  layout::Size measure(LayoutPass& in, Element& self, layout::ProposedSize proposal) const final;
  void place(LayoutPass& in, Element& self, layout::ProposedSize proposal) const final;
  double leastWidth(LayoutPass& in, Element& self) const final;

 protected:
  ~Transparent() = default;
};

/// A modifier that leaves the layout of its content as it is and adds to how it is shown.
class Decoration : public Modifier, public Transparent {
 public:
  using Modifier::Modifier;

  void evaluate(Evaluator& in, const Look& look, layout::Axis axis,
                ElementList& out) const override;
};

}  // namespace quorix::swiftui
