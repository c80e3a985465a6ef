#include "QuorixWidgets/overlay/WebViewControllerRepresentable.h"

namespace quorix {

std::shared_ptr<WebViewController> WebViewControllerRepresentable::makeUIViewController() const {
  auto controller = std::make_shared<WebViewController>();
  controller->userName = userName;
  controller->token = token;
  controller->locale = locale;
  return controller;
}

}  // namespace quorix
