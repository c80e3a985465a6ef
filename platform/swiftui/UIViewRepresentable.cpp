
#include <type_traits>
#include <typeindex>
#include <utility>

#include "platform/swiftui/DisplayListBuilder.h"
#include "platform/swiftui/Evaluator.h"
#include "platform/swiftui/LayoutPass.h"
#include "platform/swiftui/TreePrinter.h"
#include "platform/swiftui/UIViewRepresentable.h"

namespace quorix::swiftui {
namespace {

using render::HostedContent;

using Shown = StateBox<std::shared_ptr<HostedContent>>;

struct HostedElement final : Element {
  HostedElement(const ElementRules& kind, HostedContent& shown) : Element(kind), content(shown) {}

  HostedContent& content;
};

class HostedNode : public Node, public ElementRules {
 public:
  void print(TreePrinter& to, int depth) const final { to.line(depth, name()); }

  void evaluate(Evaluator& in, const Look&, layout::Axis, ElementList& out) const final {
    in.at(steps::into(maker()), [&] {
      auto& slot = in.states().first;
      if (!slot) slot = std::make_shared<Shown>(make());
      const auto& hosted = static_cast<const Shown&>(*slot).value;
      update(*hosted);
      in.result().hosted.push_back(hosted);
      out.append(in.make<HostedElement>(static_cast<const ElementRules&>(*this), *hosted));
    });
  }

  layout::Size measure(LayoutPass& in, Element& self, layout::ProposedSize proposal) const final {
    return contentOf(self).sizeThatFits(proposal, in.engine, 1 / in.grid.pixel());
  }

  void place(LayoutPass&, Element&, layout::ProposedSize) const final {}
  double leastWidth(LayoutPass&, Element&) const final { return 0; }

  void show(DisplayListBuilder& to, const Element& self) const final {
    to.host(contentOf(self), self);
  }

 private:
  virtual std::string_view name() const = 0;
  /// The type of the maker. If it changes, the place gets new content.
  virtual std::type_index maker() const = 0;
  virtual std::shared_ptr<HostedContent> make() const = 0;
  /// Called at each evaluation.
  virtual void update(HostedContent& hosted) const = 0;

  static HostedContent& contentOf(const Element& self) {
    return static_cast<const HostedElement&>(self).content;
  }
};

class RepresentedNode final : public HostedNode {
 public:
  explicit RepresentedNode(Represented content) : content_(std::move(content)) {}

 private:
  std::string_view name() const override { return content_.name; }
  std::type_index maker() const override { return content_.make.target_type(); }
  std::shared_ptr<HostedContent> make() const override { return content_.make(); }
  void update(HostedContent& hosted) const override {
    if (content_.update) content_.update(hosted);
  }

  Represented content_;
};

/// Shows an existing object. Another object in the same place replaces it.
template <class Content, class Object>
class ObjectNode final : public HostedNode {
 public:
  explicit ObjectNode(std::shared_ptr<Object> object) : object_(std::move(object)) {}

 private:
  std::string_view name() const override {
    return std::is_same_v<Object, uikit::UIView> ? "UIView" : "UIViewController";
  }
  std::type_index maker() const override { return typeid(ObjectNode); }
  std::shared_ptr<HostedContent> make() const override {
    return std::make_shared<Content>(object_);
  }
  void update(HostedContent& hosted) const override {
    auto& content = static_cast<Content&>(hosted);
    content.updateQuietly([&] { content.show(object_); });
  }

  std::shared_ptr<Object> object_;
};

template <class Content, class Object>
View showing(std::shared_ptr<Object> object) {
  if (!object) return {};
  return makeView<ObjectNode<Content, Object>>(std::move(object));
}

}  // namespace

View represented(Represented content) { return makeView<RepresentedNode>(std::move(content)); }

View hosting(std::shared_ptr<uikit::UIView> view) {
  return showing<uikit::UIViewContent>(std::move(view));
}

View hosting(std::shared_ptr<uikit::UIViewController> controller) {
  return showing<uikit::UIViewControllerContent>(std::move(controller));
}

}  // namespace quorix::swiftui
