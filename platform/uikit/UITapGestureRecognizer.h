#pragma once

#include <functional>
#include <memory>

namespace quorix::uikit {

/// Calls a target when the view that it was added to is tapped. Holds the target weakly and does
/// not call it once it is gone. Main thread.
///
///     #include <platform/uikit/UIView.h>
///     auto box = std::make_shared<UIView>();
///     auto open = std::make_shared<bool>(false);
///     box->addGestureRecognizer(std::make_shared<UITapGestureRecognizer>(
///         open, [](bool& open, UITapGestureRecognizer&) { open = true; }));
class UITapGestureRecognizer {
 public:
  template <class Target, class Action>
  UITapGestureRecognizer(const std::shared_ptr<Target>& target, Action action)
      : recognized_([weak = std::weak_ptr<Target>(target),
                     action = std::move(action)](UITapGestureRecognizer& sender) {
          if (const auto strong = weak.lock()) action(*strong, sender);
        }) {}

  /// Call at a tap.
  void recognize() {
    const auto kept = recognized_;  // the action may delete this recognizer
    kept(*this);
  }

 private:
  std::function<void(UITapGestureRecognizer&)> recognized_;
};

}  // namespace quorix::uikit
