#pragma once

#include <functional>
#include <memory>

namespace quorix::uikit {

/// Tells a target of a tap on the view that it was added to. The target is held weakly: without it
/// a tap does nothing. Main thread.
///
///     label->addGestureRecognizer(std::make_shared<UITapGestureRecognizer>(
///         widget, [](Widget& widget, UITapGestureRecognizer&) { widget.open(); }));
class UITapGestureRecognizer {
 public:
  template <class Target, class Action>
  UITapGestureRecognizer(const std::shared_ptr<Target>& target, Action action)
      : recognized_([weak = std::weak_ptr<Target>(target),
                     action = std::move(action)](UITapGestureRecognizer& sender) {
          if (const auto strong = weak.lock()) action(*strong, sender);
        }) {}

  /// A tap happened.
  void recognize() {
    const auto kept = recognized_;  // the view may drop this recognizer meanwhile
    kept(*this);
  }

 private:
  std::function<void(UITapGestureRecognizer&)> recognized_;
};

}  // namespace quorix::uikit
