
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

/// Content that a `Maker` makes once for each place in a tree, and updates at each evaluation.
template <class Maker>
class HostedNode final : public Node, public ElementRules {
 public:
  explicit HostedNode(Maker maker) : maker_(std::move(maker)) {}

  void print(TreePrinter& to, int depth) const override { to.line(depth, maker_.name()); }

  void evaluate(Evaluator& in, const Look&, ElementList& out) const override {
    in.at(steps::into(maker_.type()), [&] {
      auto& slot = in.states().first;
      if (!slot) slot = std::make_shared<Shown>(maker_.make());
      const auto& hosted = static_cast<const Shown&>(*slot).value;
      // Quietly, because the view is about to be laid out. A notice could evaluate it again.
      hosted->updateQuietly([&] { maker_.update(*hosted); });
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

  Maker maker_;
};

/// Makes content by a host's functions. Other functions in the same place make new content.
struct RepresentedMaker {
  std::string_view name() const { return content.name; }
  std::type_index type() const { return content.make.target_type(); }
  std::shared_ptr<HostedContent> make() const { return content.make(); }
  void update(HostedContent& hosted) const {
    if (content.update) content.update(hosted);
  }

  Represented content;
};

/// Shows an existing object. Another object in the same place replaces it.
template <class Content, class Object>
struct ObjectMaker {
  std::string_view name() const {
    return std::is_same_v<Object, uikit::UIView> ? "UIView" : "UIViewController";
  }
  std::type_index type() const { return typeid(ObjectMaker); }
  std::shared_ptr<HostedContent> make() const { return std::make_shared<Content>(object); }
  void update(HostedContent& hosted) const { static_cast<Content&>(hosted).show(object); }

  std::shared_ptr<Object> object;
};

template <class Content, class Object>
View showing(std::shared_ptr<Object> object) {
  using Maker = ObjectMaker<Content, Object>;
  if (!object) return {};
  return makeView<HostedNode<Maker>>(Maker{std::move(object)});
}

}  // namespace

View represented(Represented content) {
  return makeView<HostedNode<RepresentedMaker>>(RepresentedMaker{std::move(content)});
}

View hosting(std::shared_ptr<uikit::UIView> view) {
  return showing<uikit::UIViewContent>(std::move(view));
}

View hosting(std::shared_ptr<uikit::UIViewController> controller) {
  return showing<uikit::UIViewControllerContent>(std::move(controller));
}

}  // namespace quorix::swiftui
