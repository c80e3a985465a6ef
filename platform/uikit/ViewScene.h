#pragma once

#include <functional>
#include <memory>

#include "platform/layout/PixelGrid.h"
#include "platform/render/Scene.h"
#include "platform/uikit/UIView.h"

namespace quorix::uikit {

/// Turns laid-out views into the scene that surfaces paint. Main thread.
class ViewScene {
 public:
  explicit ViewScene(const LayoutContext& context);

  render::Scene build(UIView& root);

 private:
  /// What a view takes from those that hold it.
  struct Surroundings {
    layout::Point origin;
    layout::Rect visible;          ///< a touch outside meets nobody
    bool touched = true;           ///< nobody further out refuses touches
    std::function<void()> action;  ///< of the nearest recognizer
    std::size_t areasBelow = 0;    ///< how many hit areas there were with that one
  };

  void add(UIView& view, Surroundings around);
  void paint(const UIView& view, const layout::Rect& frame);
  void takeTouches(UIView& view, Surroundings& around);
  void describe(const UIView& view, const layout::Rect& frame, const Surroundings& around);

  const LayoutContext& context_;
  layout::PixelGrid grid_;
  render::Scene scene_;
};

}  // namespace quorix::uikit
