#include <utility>

#include "platform/swiftui/UIViewControllerRepresentable.h"
#include "platform/swiftui/UIViewRepresentable.h"

namespace quorix::swiftui {
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
