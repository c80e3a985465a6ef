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

/// The content of a view: one kind of element or modifier. Immutable; main thread.
class QUORIX_EXPORT Node {
 public:
  virtual ~Node() = default;

  /// Prints the element at `depth`, and its children.
  virtual void print(TreePrinter& to, int depth) const = 0;

  /// Appends the elements of this node in the look `look`.
  virtual void evaluate(Evaluator& in, const Look& look, ElementList& out) const = 0;
};

/// The layout and display of one kind of element. `self` is the element of one evaluation.
class ElementRules {
 public:
  /// Whether the element is laid out exactly as its one child. Then only the child caches sizes.
  bool isTransparent() const { return transparent_; }

  /// The size that the element chooses for `proposal`.
  virtual layout::Size measure(LayoutPass& in, Element& self,
                               layout::ProposedSize proposal) const = 0;
  /// Places the children. The element's own frame is already set.
  virtual void place(LayoutPass& in, Element& self, layout::ProposedSize proposal) const = 0;
  /// The smallest width at which no word in the element breaks; 0 if no word sets its width.
  virtual double leastWidth(LayoutPass& in, Element& self) const = 0;
  /// Adds the element's items, hit areas and accessibility elements.
  virtual void show(DisplayListBuilder& to, const Element& self) const = 0;

 protected:
  ~ElementRules() = default;

  bool transparent_ = false;
};

/// A list of sibling elements.
struct ElementList {
  Element* first = nullptr;
  Element* last = nullptr;
  std::size_t count = 0;

  void append(Element* element);
  void appendAll(const ElementList& list);
};

/// A size that an element chose during this layout.
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
  Element* next = nullptr;  ///< the next sibling
  layout::Rect frame;       ///< set by `LayoutPass::place`
  const MeasuredSize* measured = nullptr;
  // Properties that a stack reads from its children.
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
