#include "platform/swiftui/Elements.h"

#include <string>
#include <utility>

#include "platform/swiftui/Node.h"

namespace quorix::swiftui {

View HStack(layout::VerticalAlignment alignment, std::optional<double> spacing,
            std::vector<View> children) {
  return makeView(nodes::Stack{layout::Axis::horizontal,
                               {layout::HorizontalAlignment::center, alignment},
                               spacing,
                               std::move(children)});
}

View VStack(layout::HorizontalAlignment alignment, std::optional<double> spacing,
            std::vector<View> children) {
  return makeView(nodes::Stack{layout::Axis::vertical,
                               {alignment, layout::VerticalAlignment::center},
                               spacing,
                               std::move(children)});
}

View Spacer(std::optional<double> minLength) { return makeView(nodes::Spacer{minLength}); }

View Divider() { return makeView(nodes::Divider{}); }

View Image(std::string_view name, foundation::Bundle::Ref bundle) {
  return makeView(nodes::Image{std::string(name), std::move(bundle)});
}

View Button(std::function<void()> action, View label) {
  return makeView(nodes::Modified{std::move(label), modifiers::Button{std::move(action)}});
}

View Image(const ImageResource& resource) { return Image(resource.name, resource.bundle); }

View Group(std::vector<View> children) { return makeView(nodes::Group{std::move(children)}); }

View Conditional(bool condition, View chosen) {
  return makeView(nodes::Conditional{condition, std::move(chosen)});
}

View Lazy(std::function<View()> make) { return makeView(nodes::Lazy{std::move(make)}); }

}  // namespace quorix::swiftui
