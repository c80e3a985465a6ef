#include <string>
#include <utility>

#include "platform/graphics/AssetCatalog.h"
#include "platform/swiftui/DisplayListBuilder.h"
#include "platform/swiftui/Elements.h"
#include "platform/swiftui/Evaluator.h"
#include "platform/swiftui/LayoutPass.h"
#include "platform/swiftui/TreePrinter.h"

namespace quorix::swiftui {
namespace {

struct ShownImage final : Element {
  ShownImage(const ElementRules& kind, layout::Size natural, const Look& look,
             graphics::RGBA drawnTint)
      : Element(kind), naturalSize(natural), resizable(look.resizable), tint(drawnTint) {}

  layout::Size naturalSize;
  bool resizable;
  graphics::RGBA tint;
};

class ImageNode final : public Node, public ElementRules {
 public:
  ImageNode(std::string_view name, foundation::Bundle::Ref bundle)
      : name_(name), bundle_(std::move(bundle)) {}

  void print(TreePrinter& to, int depth) const override {
    to.line(depth, "Image(" + inQuotes(name_) + ")");
  }

  void evaluate(Evaluator& in, const Look& look, ElementList& out) const override {
    const auto asset = graphics::imageSet(bundle_, name_);
    // An unknown image shows nothing, but frames and padding around it keep their size.
    const layout::Size size = asset ? layout::Size{asset->width, asset->height} : layout::Size{};
    ++in.result().items;
    out.append(in.make<ShownImage>(static_cast<const ElementRules&>(*this), size, look,
                                   look.drawnColor(in.environment)));
  }

  layout::Size measure(LayoutPass&, Element& element,
                       layout::ProposedSize proposal) const override {
    const auto& self = static_cast<ShownImage&>(element);
    if (!self.resizable) return self.naturalSize;
    return {proposal.width.value_or(self.naturalSize.width),
            proposal.height.value_or(self.naturalSize.height)};
  }

  void place(LayoutPass&, Element&, layout::ProposedSize) const override {}

  double leastWidth(LayoutPass&, Element& element) const override {
    const auto& self = static_cast<ShownImage&>(element);
    return self.resizable ? 0 : self.naturalSize.width;
  }

  void show(DisplayListBuilder& to, const Element& element) const override {
    const auto& self = static_cast<const ShownImage&>(element);
    const layout::Rect frame = to.onPixels(self.frame);
    const auto& bundle = bundle_ ? bundle_ : foundation::Bundle::main();
    to.describe(render::Role::image, frame);
    to.list.items.push_back(render::ImageItem{frame, name_, bundle, self.tint});
  }

 private:
  std::string name_;
  foundation::Bundle::Ref bundle_;
};

}  // namespace

View Image(std::string_view name, foundation::Bundle::Ref bundle) {
  return makeView<ImageNode>(name, std::move(bundle));
}

View Image(const ImageResource& resource) { return Image(resource.name, resource.bundle); }

}  // namespace quorix::swiftui
