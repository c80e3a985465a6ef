
#include <typeinfo>
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

class RepresentedNode final : public Node, public ElementRules {
 public:
  explicit RepresentedNode(Represented content) : content_(std::move(content)) {}

  void print(TreePrinter& to, int depth) const override { to.line(depth, content_.name); }

  void evaluate(Evaluator& in, const Look&, layout::Axis, ElementList& out) const override {
    // Another maker makes other content.
    in.at(steps::into(content_.make.target_type()), [&] {
      auto& slot = in.states().first;
      if (!slot) slot = std::make_shared<Shown>(content_.make());
      const auto& hosted = static_cast<const Shown&>(*slot).value;
      if (content_.update) content_.update(*hosted);
      in.result().hosted.push_back(hosted);
      out.append(in.make<HostedElement>(static_cast<const ElementRules&>(*this), *hosted));
    });
  }

  layout::Size measure(LayoutPass& in, Element& self,
                       layout::ProposedSize proposal) const override {
    return contentOf(self).sizeThatFits(proposal, in.engine, 1 / in.grid.pixel());
  }

  void place(LayoutPass&, Element&, layout::ProposedSize) const override {}
  double leastWidth(LayoutPass&, Element&) const override { return 0; }

  void show(DisplayListBuilder& to, const Element& self) const override {
    to.host(contentOf(self), self);
  }

 private:
  static HostedContent& contentOf(const Element& self) {
    return static_cast<const HostedElement&>(self).content;
  }

  Represented content_;
};

}  // namespace

View represented(Represented content) { return makeView<RepresentedNode>(std::move(content)); }

namespace {

/// Another object in the same place takes over.
template <class Content, class Object>
View showing(std::string_view name, const std::shared_ptr<Object>& object) {
  if (!object) return {};
  return represented({name, [object] { return std::make_shared<Content>(object); },
                      [object](render::HostedContent& hosted) {
                        auto& content = static_cast<Content&>(hosted);
                        content.updateQuietly([&] { content.show(object); });
                      }});
}

}  // namespace

View hosting(std::shared_ptr<uikit::UIView> view) {
  return showing<uikit::UIViewContent>("UIView", view);
}

View hosting(std::shared_ptr<uikit::UIViewController> controller) {
  return showing<uikit::UIViewControllerContent>("UIViewController", controller);
}

}  // namespace quorix::swiftui
