#pragma once

#include <cstddef>

#include "platform/foundation/Export.h"
#include "platform/layout/Geometry.h"

namespace quorix::swiftui {

class DisplayListBuilder;
class Evaluator;
class LayoutPass;
class TreePrinter;
struct Element;
struct ElementList;
struct Look;

/// What a view is: one kind of element or modifier. Immutable; main thread.
class QUORIX_EXPORT Node {
 public:
  virtual ~Node() = default;

  /// Writes the element and what it holds, the element at `depth`.
  virtual void print(TreePrinter& to, int depth) const = 0;

  /// Appends the elements that it stands for in a stack along `axis`, in the look that reaches it.
  virtual void evaluate(Evaluator& in, const Look& look, layout::Axis axis,
                        ElementList& out) const = 0;
};

/// How one kind of element is sized, placed and shown. `self` is the element of one evaluation.
class ElementRules {
 public:
  /// Whether it is laid out as its one child is. The child alone then keeps the sizes.
  bool isTransparent() const { return transparent_; }

  /// The size that it chooses when offered `proposal`.
  virtual layout::Size measure(LayoutPass& in, Element& self,
                               layout::ProposedSize proposal) const = 0;
  /// Places what it holds; its own frame is set.
  virtual void place(LayoutPass& in, Element& self, layout::ProposedSize proposal) const = 0;
  /// The least width at which no word in it breaks; 0 where its width depends on no word.
  virtual double leastWidth(LayoutPass& in, Element& self) const = 0;
  /// Adds what it paints, where it takes taps and what assistive technology meets.
  virtual void show(DisplayListBuilder& to, const Element& self) const = 0;

 protected:
  ~ElementRules() = default;

  bool transparent_ = false;
};

/// The elements beside each other in one place, in order.
struct ElementList {
  Element* first = nullptr;
  Element* last = nullptr;
  std::size_t count = 0;

  void append(Element* element);
  void appendAll(const ElementList& list);
};

/// A size that an element chose in the pass that lays it out.
struct MeasuredSize {
  layout::ProposedSize proposal;
  layout::Size size;
  const MeasuredSize* next;
};

/// One element of an evaluation. Lives in the evaluation's arena.
struct Element {
  explicit Element(const ElementRules& kind) : rules(&kind) {}

  const ElementRules* rules;
  ElementList children;
  Element* next = nullptr;  ///< beside it
  layout::Rect frame;       ///< where `LayoutPass::place` put it
  const MeasuredSize* measured = nullptr;
  // What a stack asks of its children.
  bool isText = false;
  bool isSpacer = false;
  bool holdsText = false;

  Element& child() const { return *children.first; }
};

inline void ElementList::append(Element* element) {
  (first ? last->next : first) = element;
  last = element;
  ++count;
}

inline void ElementList::appendAll(const ElementList& list) {
  if (!list.first) return;
  (first ? last->next : first) = list.first;
  last = list.last;
  count += list.count;
}

}  // namespace quorix::swiftui
