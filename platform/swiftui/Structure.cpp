// Nodes without their own display.
#include <functional>
#include <memory_resource>
#include <string>
#include <utility>
#include <vector>

#include "platform/swiftui/Elements.h"
#include "platform/swiftui/Evaluator.h"
#include "platform/swiftui/TreePrinter.h"

namespace quorix::swiftui {
namespace {

class EmptyNode final : public Node {
 public:
  void print(TreePrinter& to, int depth) const override { to.line(depth, "EmptyView"); }
  void evaluate(Evaluator&, const Look&, ElementList&) const override {}
};

class GroupNode final : public Node {
 public:
  explicit GroupNode(Views children)
      : children_(children.begin(), children.end(), foundation::Arena::currentResource()) {}

  void print(TreePrinter& to, int depth) const override {
    for (const View& child : children_) to.print(child, depth);
  }
  void evaluate(Evaluator& in, const Look& look, ElementList& out) const override {
    in.collectAll(children_, look, out);
  }

 private:
  std::pmr::vector<View> children_;
};

class ConditionalNode final : public Node {
 public:
  ConditionalNode(bool condition, View content)
      : condition_(condition), content_(std::move(content)) {}

  void print(TreePrinter& to, int depth) const override {
    to.line(depth, "Conditional(" + std::string(nameOf(condition_)) + ")");
    to.print(content_, depth + 1);
  }
  void evaluate(Evaluator& in, const Look& look, ElementList& out) const override {
    in.at(condition_ ? steps::chosen : steps::notChosen, [&] { in.collect(content_, look, out); });
  }

 private:
  bool condition_;
  View content_;
};

class LazyNode final : public Node {
 public:
  explicit LazyNode(std::function<View()> make) : make_(std::move(make)) {}

  void print(TreePrinter& to, int depth) const override { to.print(make_(), depth); }
  void evaluate(Evaluator& in, const Look& look, ElementList& out) const override {
    in.collectMade(make_(), look, out);
  }

 private:
  std::function<View()> make_;
};

}  // namespace

View::View() {
  static const auto empty = std::make_shared<const EmptyNode>();
  node_ = empty;
}

View Group(Views children) { return makeView<GroupNode>(children); }

View Conditional(bool condition, View chosen) {
  return makeView<ConditionalNode>(condition, std::move(chosen));
}

View Lazy(std::function<View()> make) { return makeView<LazyNode>(std::move(make)); }

}  // namespace quorix::swiftui
