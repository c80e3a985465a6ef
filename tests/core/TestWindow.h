#pragma once

#include <gtest/gtest.h>

#include <sstream>
#include <stdexcept>

#include "platform/foundation/MainQueue.h"
#include "platform/hosting/ViewWindow.h"
#include "platform/render/ScenePrinter.h"
#include "platform/swiftui/Elements.h"
#include "tests/core/FixedWidthText.h"

namespace quorix::testing {

/// The painted items up to their content, without their looks, which are not part of the layout.
inline std::string printedItems(const render::Scene& scene) {
  std::istringstream lines(render::printFrames(scene));
  std::string result;
  for (std::string line; std::getline(lines, line);) {
    const std::size_t end = line.rfind('"');
    result += line.substr(0, end == std::string::npos ? line.rfind(" #") : end + 1) + "\n";
  }
  return result;
}

/// The painted items of one kind.
template <class Item>
std::vector<Item> itemsOf(const render::Scene& scene) {
  std::vector<Item> found;
  for (const render::Item& item : scene.items) {
    if (const auto* one = std::get_if<Item>(&item)) found.push_back(*one);
  }
  return found;
}

/// A sheet without a window.
struct TestSheet : hosting::SheetPresenter::Client {
  explicit TestSheet(const swiftui::Presentation& presentation, layout::Size window,
                     layout::EdgeInsets safeArea) {
    sheet.setMotion(false);
    sheet.setWindow(window, safeArea);
    sheet.present(presentation);
  }
  void sheetNeedsDisplay() override {}
  void sheetDidClose() override {}

  FixedWidthText text;
  hosting::SheetPresenter sheet{text, *this};
};

struct TestText {
  FixedWidthText text;
  ~TestText() { foundation::MainQueue::drain(); }  // leaves no work for the next test
};

/// A window that one view fills. User actions find elements by their accessibility label.
class TestWindow : public TestText, public hosting::ViewWindow {
 public:
  explicit TestWindow(swiftui::View root, swiftui::Environment settings = {},
                      layout::Size windowSize = {320, 640})
      : ViewWindow(text, {settings, false}, std::move(root), windowSize),
        host(&view().host()),
        size(windowSize),
        environment(settings) {
    host->scene(size);
  }

  hosting::ViewHost* host;
  layout::Size size;
  swiftui::Environment environment;
  int displays = 0;  ///< the number of requests for a display
  std::string told;  ///< what happened: "activated opened closed:key "

  /// The top-most sheet; null without one.
  hosting::SheetPresenter* sheet() { return topmost() ? &topmost()->presenter() : nullptr; }
  void setMotion(bool motion) { setSettings({environment, motion}); }

  /// Runs turns of the main queue and frames until nothing is left to do.
  void settle() {
    milliseconds_ += 1000;
    while (frame(1.0 / 60) || foundation::MainQueue::drain() > 0) {
    }
  }
  void resize(layout::Size to) {
    size = to;
    ViewWindow::resize(to, to);
    settle();
  }

  const render::Scene& shown() { return sheet() ? sheet()->scene() : host->scene(size); }
  const render::AccessibilityElement& element(const std::string& label) {
    for (const auto& element : shown().accessibility) {
      if (element.label == label) return element;
    }
    throw std::out_of_range("nothing is called " + label);
  }
  /// The labels of all elements: "kept 1, switch".
  std::string labels() {
    std::string result;
    for (const auto& element : shown().accessibility) {
      result += (result.empty() ? "" : ", ") + element.label;
    }
    return result;
  }
  static layout::Point middle(const layout::Rect& frame) {
    return {frame.left() + frame.size.width / 2, frame.top() + frame.size.height / 2};
  }

  bool press(layout::Point point) { return pointer(hosting::PointerEvent::Phase::pressed, point); }
  bool release(layout::Point point) {
    return pointer(hosting::PointerEvent::Phase::released, point);
  }
  bool key(hosting::Key key) { return handle({key}); }
  void tap(layout::Point point) {
    press(point);
    release(point);
  }
  void tap(const std::string& label) { tap(middle(element(label).frame)); }
  /// Activates an element and runs all work that follows.
  void act(const std::string& label) {
    tap(label);
    settle();
  }

 private:
  bool pointer(hosting::PointerEvent::Phase phase, layout::Point at) {
    return front().handle({phase, at, milliseconds_ += 16});
  }
  void needsFrame() override { ++displays; }
  void activated() override { told += "activated "; }
  void sheetOpened() override { told += "opened "; }
  void sheetClosed(hosting::SheetCloseReason reason) override {
    constexpr const char* names[] = {"button", "swipe", "outside", "key", "host"};
    told += std::string("closed:") + names[static_cast<int>(reason)] + " ";
  }

  double milliseconds_ = 0;
};

}  // namespace quorix::testing
