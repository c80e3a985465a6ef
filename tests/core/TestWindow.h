#pragma once

#include <gtest/gtest.h>

#include <optional>
#include <sstream>
#include <stdexcept>
#include <string>

#include "platform/foundation/MainQueue.h"
#include "platform/hosting/SheetPresenter.h"
#include "platform/hosting/ViewHost.h"
#include "platform/render/ScenePrinter.h"
#include "tests/core/FixedWidthText.h"

namespace quorix::testing {

/// The painted items, each up to what it shows: the looks are not the layout's.
inline std::string printedItems(const render::Scene& scene) {
  std::istringstream lines(render::printFrames(scene));
  std::string result;
  for (std::string line; std::getline(lines, line);) {
    const std::size_t end = line.rfind('"');
    result += line.substr(0, end == std::string::npos ? line.rfind(" #") : end + 1) + "\n";
  }
  return result;
}

/// A window that one view fills, as an engine's surface shows it, with the sheet that the view asks
/// for. What a user does is found by its accessibility label.
class TestWindow final : public hosting::ViewHost::Client, public hosting::SheetPresenter::Client {
 public:
  explicit TestWindow(swiftui::View root, swiftui::Environment settings = {},
                      layout::Size windowSize = {320, 640})
      : host(std::in_place, text, *this), size(windowSize), environment(settings) {
    host->setEnvironment(environment);
    host->setRoot(std::move(root));
    host->setOnScreen(true);
    host->scene(size);
  }
  ~TestWindow() override {
    sheet.reset();
    host.reset();
    foundation::MainQueue::drain();  // leaves nothing to the next test
  }
  TestWindow(const TestWindow&) = delete;
  TestWindow& operator=(const TestWindow&) = delete;

  FixedWidthText text;
  std::optional<hosting::ViewHost> host;
  std::optional<hosting::SheetPresenter> sheet;
  layout::Size size;
  swiftui::Environment environment;
  bool motion = false;
  int displays = 0;  ///< requests to show the view again

  /// A turn of the main queue and a frame, until nothing is left to do.
  void settle() {
    do {
      if (host) host->scene(size);
      if (sheet) sheet->scene(), sheet->advance(1.0 / 60);
    } while (foundation::MainQueue::drain() > 0 || (sheet && sheet->isMoving()));
  }
  void resize(layout::Size to) {
    size = to;
    if (sheet) sheet->setWindow(size, {});
    settle();
  }

  const render::Scene& shown() { return sheet ? sheet->scene() : host->scene(size); }
  const render::AccessibilityElement& element(const std::string& label) {
    for (const auto& element : shown().accessibility) {
      if (element.label == label) return element;
    }
    throw std::out_of_range("nothing is called " + label);
  }
  /// All that is read out: "kept 1, switch".
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

  void press(layout::Point point) {
    sheet ? sheet->pointerPressed(point) : void(host->pointerPressed(point));
  }
  void release(layout::Point point, double velocity = 0) {
    sheet ? sheet->pointerReleased(point, velocity) : void(host->pointerReleased(point));
  }
  void tap(layout::Point point) {
    press(point);
    release(point);
  }
  void tap(const std::string& label) { tap(middle(element(label).frame)); }
  /// A tap and all that comes of it.
  void act(const std::string& label) {
    tap(label);
    settle();
  }

 private:
  void viewNeedsDisplay() override { ++displays; }
  void presentationChanged() override {
    const swiftui::Presentation* presentation = host->presentation();
    if (!presentation) {
      if (sheet) sheet->retract();
      return;
    }
    if (!sheet) {
      sheet.emplace(text, *this);
      sheet->setMotion(motion);
      sheet->setEnvironment(environment);
      sheet->setWindow(size, {});
    }
    sheet->present(*presentation);
  }
  void sheetNeedsDisplay() override {}
  void sheetPresentationChanged() override {}
  void sheetDidClose() override { sheet.reset(); }
};

}  // namespace quorix::testing
