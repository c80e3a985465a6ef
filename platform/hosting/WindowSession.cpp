#include "platform/hosting/WindowSession.h"

#include <algorithm>
#include <cstddef>
#include <utility>

#include "platform/foundation/MainQueue.h"
#include "platform/foundation/Runtime.h"
#include "platform/hosting/SheetSession.h"
#include "platform/swiftui/UIViewRepresentable.h"
#include "platform/uikit/UIApplication.h"

namespace quorix::hosting {

using ActivationState = uikit::UIScene::ActivationState;
using Controller = std::shared_ptr<uikit::UIViewController>;

struct WindowSessions {
  std::vector<WindowSession*> all;
};

namespace {

std::vector<WindowSession*>& sessions() { return foundation::Runtime::the<WindowSessions>().all; }

}  // namespace

WindowSession::WindowSession() {
  window_->setRootViewController(std::make_shared<uikit::UIViewController>());
  window_->setClient(this);
  window_->setHidden(false);
  scene_->addWindow(window_);
  uikit::UIApplication::shared().connect(scene_);
  sessions().push_back(this);
}

WindowSession::~WindowSession() {
  for (SheetSession* sheet : sheets_) sheet->window_ = nullptr;
  std::erase(sessions(), this);
  window_->setClient(nullptr);
  window_->resignKey();
  uikit::UIApplication::shared().disconnect(scene_);
}

SheetSession& WindowSession::makeSheet(Responder* opener, bool animated) {
  SheetSession& sheet = newSheet(opener);
  if (opener) sheet.opener_ = opener->weak();
  sheet.animated_ = animated;
  sheet.followOpener();
  return sheet;
}

// Activation: of several visible windows, the one that the user works in is active.

void WindowSession::used(Responder& responder) {
  used_ = responder.weak();
  becameKey();  // for systems without a window manager to set the focus
}

void WindowSession::settingsChanged(const Responder& opener) {
  // Start at the top: a sheet that loses its motion may close and leave the list, together with
  // those above it.
  for (std::size_t i = sheets_.size(); i-- > 0;) {
    if (i >= sheets_.size()) continue;
    const auto its = sheets_[i]->opener_.lock();
    if (its && *its == &opener) sheets_[i]->followOpener();
  }
}

void WindowSession::becameKey() {
  window_->makeKey();
  for (WindowSession* session : sessions()) session->visibilityChanged();
}

void WindowSession::visibilityChanged() {
  const auto inSight = window_->isKeyWindow() ? ActivationState::foregroundActive
                                              : ActivationState::foregroundInactive;
  scene_->setActivationState(isVisible() ? inSight : ActivationState::background);
}

void WindowSession::setSafeArea(const layout::SideInsets& safeArea) {
  safeArea_ = safeArea;
  for (SheetSession* sheet : sheets_) sheet->followWindow();
}

// Presented controllers.

/// Shows them on a later turn, because the caller may be in the middle of its own work.
void WindowSession::presentedControllersChanged(uikit::UIWindow&, bool animated) {
  animated_ = animated;
  for (const Shown& shown : shown_) {
    // Do this at once, while the sheet knows which event closed it.
    shown.isPresented.set(shown.controller->presentingViewController() != nullptr);
  }
  if (showQueued_) return;
  showQueued_ = std::make_shared<WindowSession*>(this);
  foundation::MainQueue::async([self = std::weak_ptr(showQueued_)] {
    if (const auto queued = self.lock()) (*queued)->showPresented();
  });
}

void WindowSession::showPresented() {
  showQueued_.reset();
  const auto presented = window_->presentedControllers();
  std::vector<Shown> before = std::exchange(shown_, {});
  for (const Controller& controller : presented) {
    const auto known = std::find_if(before.begin(), before.end(), [&](const Shown& shown) {
      return shown.controller == controller && !shown.sheet.expired();
    });
    if (known == before.end()) {
      show(controller);
    } else {
      shown_.push_back(*known);
      before.erase(known);
    }
  }
  for (auto gone = before.rbegin(); gone != before.rend(); ++gone) {
    if (const auto sheet = gone->sheet.lock()) static_cast<SheetSession*>(*sheet)->retract();
  }
}

void WindowSession::show(const Controller& controller) {
  const auto opener = used_.lock();
  SheetSession& sheet = makeSheet(opener ? *opener : nullptr, animated_);
  const swiftui::Presentation presentation = controllerPresentation(controller);
  sheet.present(presentation);
  shown_.push_back({controller, sheet.weak(), presentation.isPresented});
}

swiftui::Presentation controllerPresentation(
    const std::shared_ptr<uikit::UIViewController>& controller) {
  auto isPresented = std::make_shared<swiftui::StateBox<bool>>(true);
  isPresented->onChange = [presented = std::weak_ptr(controller), box = isPresented.get()] {
    const auto closed = box->value ? nullptr : presented.lock();
    const auto presenter = closed ? closed->presentingViewController() : nullptr;
    if (presenter) presenter->dismiss(true);
  };
  // A controller's view fills the whole screen, also the parts that the device covers.
  return {swiftui::Binding<bool>(std::move(isPresented)),
          swiftui::hosting(controller).edgesIgnoringSafeArea(layout::Edges::all())};
}

}  // namespace quorix::hosting
