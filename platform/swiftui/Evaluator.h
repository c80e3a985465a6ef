#pragma once

#include <vector>

#include "platform/swiftui/Evaluation.h"
#include "platform/swiftui/Look.h"

namespace quorix::swiftui {

/// One evaluation of a view tree: goes down through its nodes and bodies and collects what they
/// stand for. Main thread.
class Evaluator {
 public:
  Evaluator(const Environment& environment, StateStore& store)
      : environment_(environment), store_(store) {}

  Evaluation run(const View& root);

 private:
  using Axis = layout::Axis;
  using Element = layout::Element;
  using Elements = std::vector<Element>;
  struct Modifying;

  /// Everything that `view` stands for, as children of a stack along `axis`.
  void collect(const View& view, const Look& look, Axis axis, Elements& out);
  void collect(const nodes::Empty&, const View&, const Look&, Axis, Elements&) {}
  void collect(const nodes::Text& node, const View&, const Look& look, Axis, Elements& out);
  void collect(const nodes::Image& node, const View&, const Look& look, Axis, Elements& out);
  void collect(const nodes::Represented& node, const View&, const Look&, Axis, Elements& out);
  void collect(const nodes::Spacer& node, const View&, const Look&, Axis axis, Elements& out);
  void collect(const nodes::Divider&, const View&, const Look&, Axis axis, Elements& out);
  void collect(const nodes::Stack& node, const View&, const Look& look, Axis, Elements& out);
  void collect(const nodes::Group& node, const View&, const Look& look, Axis axis, Elements& out);
  void collect(const nodes::Conditional& node, const View&, const Look& look, Axis axis,
               Elements& out);
  void collect(const nodes::Lazy& node, const View&, const Look& look, Axis axis, Elements& out);
  void collect(const nodes::Custom& node, const View&, const Look& look, Axis axis, Elements& out);
  void collect(const nodes::Modified& node, const View& view, const Look& look, Axis axis,
               Elements& out);
  void collectChildren(const std::vector<View>& children, const Look& look, Axis axis,
                       Elements& out);

  /// The one element that `view` stands for; several are stacked.
  Element single(const View& view, const Look& look, Axis axis);

  /// Goes on one step further in the tree.
  template <class Go>
  void at(char32_t step, Go go) {
    path_.push_back(step);
    go();
    path_.pop_back();
  }

  const Environment& environment_;
  StateStore& store_;
  Evaluation result_;
  TreePath path_;
};

}  // namespace quorix::swiftui
