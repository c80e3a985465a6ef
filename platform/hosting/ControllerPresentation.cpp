#include "platform/hosting/ControllerPresentation.h"

#include "platform/swiftui/UIViewRepresentable.h"

namespace quorix::hosting {

swiftui::Presentation controllerPresentation(
    const std::shared_ptr<uikit::UIViewController>& controller) {
  auto isPresented = std::make_shared<swiftui::StateBox<bool>>();
  isPresented->value = true;
  isPresented->onChange = [presented = std::weak_ptr(controller), box = isPresented.get()] {
    const auto closed = box->value ? nullptr : presented.lock();
    const auto presenter = closed ? closed->presentingViewController() : nullptr;
    if (presenter) presenter->dismiss(true);
  };
  // A controller's view fills its screen, under what the device covers as well.
  return {swiftui::Binding<bool>(std::move(isPresented)),
          swiftui::hosting(controller).edgesIgnoringSafeArea(layout::Edges::all())};
}

}  // namespace quorix::hosting
