#include "platform/uikit/Nib.h"

#include <functional>
#include <optional>

#include "platform/foundation/Cache.h"
#include "platform/foundation/Runtime.h"
#include "platform/uikit/NibDocument.h"

namespace quorix::uikit {
namespace {

std::shared_ptr<UILabel> labelOf(const NibDocument::Label& said) {
  auto label = std::make_shared<UILabel>();
  label->setText(said.text);
  if (said.font) label->setFont(said.font);
  if (said.textColor) label->setTextColor(said.textColor);
  label->setNumberOfLines(said.numberOfLines);
  return label;
}

std::shared_ptr<UIView> viewOf(const NibDocument::View& said) {
  auto view = said.label ? labelOf(*said.label) : std::make_shared<UIView>();
  view->setFrame(said.frame);
  view->setBackgroundColor(said.backgroundColor);
  view->setOpaque(said.opaque);
  view->setHidden(said.hidden);
  view->setUserInteractionEnabled(said.userInteractionEnabled);
  view->setTranslatesAutoresizingMaskIntoConstraints(said.translatesMask);
  view->setAccessibilityLabel(said.accessibilityLabel);
  view->setAccessibilityTraits(said.accessibilityTraits);
  return view;
}

std::string refusal(NibDocument::Line line, const std::string& why) {
  return std::to_string(line) + ": " + why;
}

/// The outlet of that name, or null.
template <class Places>
auto* placeFor(const std::string& property, Places& places) {
  const auto found = places.find(property);
  return found == places.end() ? nullptr : found->second;
}

/// Makes the views of one interface file for one owner.
class NibInstance {
 public:
  explicit NibInstance(const NibDocument& document) : document_(document) {
    for (const NibDocument::View& said : document.views) {
      views_.push_back(viewOf(said));
      if (said.superview) views_[*said.superview]->addSubview(views_.back());
    }
  }

  /// Connects the outlets. On failure changes no outlet and returns the line and the reason ("7:
  /// ...").
  std::optional<std::string> connect(std::string_view owner, const Nib::Outlets& outlets) {
    for (const NibDocument::Owner& said : document_.owners) {
      if (said.className != owner)
        return refusal(said.line, "the owner is no " + std::string(owner));
    }
    if (auto why = constrain()) return why;
    std::vector<std::function<void()>> connections;
    for (const NibDocument::Outlet& outlet : document_.outlets) {
      const auto target = view(outlet.destination);
      const auto label = std::dynamic_pointer_cast<UILabel>(target);
      auto* forView = target ? placeFor(outlet.property, outlets.views) : nullptr;
      auto* forLabel = label ? placeFor(outlet.property, outlets.labels) : nullptr;
      if (forView == nullptr && forLabel == nullptr) {
        return refusal(outlet.line, "no outlet '" + outlet.property + "' for this view");
      }
      connections.push_back([=] {
        if (forView != nullptr) *forView = target;
        if (forLabel != nullptr) *forLabel = label;
      });
    }
    for (const auto& connection : connections) connection();
    return std::nullopt;
  }

  /// The views without a superview, in their order.
  Nib::Views outermost() const {
    Nib::Views outermost;
    for (std::size_t i = 0; i < views_.size(); ++i) {
      if (!document_.views[i].superview) outermost.push_back(views_[i]);
    }
    return outermost;
  }

 private:
  using View = std::shared_ptr<UIView>;

  std::optional<std::string> constrain() {
    for (const NibDocument::Constraint& said : document_.constraints) {
      const NSLayoutConstraint constraint{view(said.firstItem), said.firstAttribute,
                                          said.relation,        view(said.secondItem),
                                          said.secondAttribute, said.constant};
      if (constraint.holder() != views_[said.holder].get()) {
        return refusal(said.line, "a constraint does not join its view and what is in it");
      }
      NSLayoutConstraint::activate({constraint});
    }
    return std::nullopt;
  }

  View view(std::optional<std::size_t> index) const { return index ? views_[*index] : nullptr; }

  const NibDocument& document_;
  std::vector<View> views_;
};

using Reading = foundation::Result<NibDocument>;

std::shared_ptr<const Reading> readFile(std::string_view xml) {
  return std::make_shared<const Reading>(readNib(xml));
}

}  // namespace

struct InterfaceFiles : foundation::ParsedFileCache<Reading> {
  InterfaceFiles() : ParsedFileCache(readFile) {}
};

foundation::Result<Nib::Views> Nib::load(std::string_view name, const foundation::Bundle& bundle,
                                         std::string_view owner, const Outlets& outlets) {
  const auto path = bundle.pathForResource(name, "xib");
  const auto file = path ? bundle.data(*path) : std::nullopt;
  if (!file) {
    return foundation::Error{"Nib", 0, "No interface file named '" + std::string(name) + "'"};
  }
  const auto refused = [&](const std::string& why) {
    return foundation::Error{"Nib", 1, std::string(name) + ".xib:" + why};
  };
  const auto reading = foundation::Runtime::the<InterfaceFiles>().read(*file);
  if (const auto* error = std::get_if<foundation::Error>(&*reading)) {
    return refused(error->description);
  }
  NibInstance instance(std::get<NibDocument>(*reading));
  if (const auto refusal = instance.connect(owner, outlets)) return refused(*refusal);
  return instance.outermost();
}

}  // namespace quorix::uikit
