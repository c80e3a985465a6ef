#include "platform/hosting/ViewWindow.h"

#include <utility>

namespace quorix::hosting {

class ViewWindow::View final : public ViewSession {
 public:
  explicit View(ViewWindow& window) : ViewSession(window.engine_), window_(window) {}

 private:
  swiftui::Environment environment() const override { return window_.settings_.environment; }
  bool allowsMotion() const override { return window_.settings_.motion; }
  layout::Size size() const override { return window_.viewSize_; }
  bool hasFocus() const override { return !window_.topmost(); }
  void takeFocusByPress() override {}
  void giveFocusOn() override {}
  void needsFrame() override { window_.needsFrame(); }
  void contentChanged() override {}
  void focusMoved(bool) override {}
  WindowSession* window() override { return &window_; }
  void activated() override { window_.activated(); }
  void sheetOpened() override { window_.sheetOpened(); }
  void sheetClosed(SheetCloseReason reason) override { window_.sheetClosed(reason); }

  ViewWindow& window_;
};

class ViewWindow::Sheet final : public SheetSession {
 public:
  explicit Sheet(ViewWindow& window) : SheetSession(window, window.engine_), window_(window) {}

  using SheetSession::isOpen;
  using SheetSession::windowResized;
  void frame(double seconds) {
    if (!isOpen()) return;
    presenter().scene();
    if (!followMotion()) return;
    presenter().advance(seconds);
    if (window_.showsPages()) followPages();
    wasShown();
  }

 private:
  double scale() const override { return window_.settings_.environment.scale; }
  void needsFrame() override { window_.needsFrame(); }
  void startClock() override {}
  void stopClock() override {}
  void comeUp() override {}
  FocusReturn focusReturn() override { return {}; }
  void takeFocus() override {}
  bool hasFocus() const override { return isTopmost(); }
  bool holdsFocus() const override { return false; }
  void dropFocus() override {}
  void focusMoved(bool) override {}
  bool canShowPages() const override { return true; }
  std::unique_ptr<PageEngine> openPage(const render::EmbedItem& embed,
                                       PageEngine::Client& client) override {
    return window_.openPage(embed, client);
  }
  void vanish() override {
    later([this] {
      std::erase_if(window_.made_, [this](const auto& sheet) { return sheet.get() == this; });
    });
  }

  ViewWindow& window_;
};

ViewWindow::ViewWindow(text::TextEngine& engine, Settings settings, swiftui::View root,
                       layout::Size size)
    : engine_(engine),
      settings_(std::move(settings)),
      viewSize_(size),
      size_(size),
      view_(std::make_unique<View>(*this)) {
  view_->settingsChanged();
  view_->host().setRoot(std::move(root));
  view_->host().setOnScreen(true);
}

ViewWindow::~ViewWindow() = default;

ViewSession& ViewWindow::view() { return *view_; }

Responder& ViewWindow::front() {
  if (SheetSession* sheet = topmost()) return *sheet;
  return *view_;
}

bool ViewWindow::handle(const KeyEvent& event) {
  const bool walks = event.key == Key::next || event.key == Key::previous;
  return walks && !topmost() ? view_->walk(event.key == Key::next) : front().handle(event);
}

void ViewWindow::setSettings(const Settings& settings) {
  if (std::exchange(settings_, settings) != settings) view_->settingsChanged();
}

void ViewWindow::resize(layout::Size view, layout::Size window) {
  viewSize_ = view;
  size_ = window;
  for (const auto& sheet : made_) sheet->windowResized(size_);
}

bool ViewWindow::frame(double seconds) {
  view_->host().scene(viewSize_);
  bool moves = false;
  for (SheetSession* open : sheets()) {
    static_cast<Sheet*>(open)->frame(seconds);
    moves = moves || open->presenter().isMoving();
  }
  return moves;
}

void ViewWindow::settle() {
  // A sheet that measures its content requests another height and is then presented again.
  for (int turn = 0; turn < ViewHost::mostTurns && view_->settle(); ++turn) {
  }
}

std::vector<SheetSession*> ViewWindow::sheets() const {
  std::vector<SheetSession*> open;
  for (const auto& sheet : made_) {
    if (sheet->isOpen()) open.push_back(sheet.get());
  }
  return open;
}

std::unique_ptr<PageEngine> ViewWindow::openPage(const render::EmbedItem&, PageEngine::Client&) {
  return nullptr;
}

SheetSession& ViewWindow::newSheet(const Responder*) {
  made_.push_back(std::make_unique<Sheet>(*this));
  made_.back()->windowResized(size_);
  return *made_.back();
}

}  // namespace quorix::hosting
