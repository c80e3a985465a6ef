#pragma once

#include <QImage>
#include <functional>

namespace quorix::examples {

/// Pictures of the widgets and their sheets on their own. Main thread.
class WidgetPictures {
 public:
  WidgetPictures() = delete;

  /// Hands each picture with its name to `keep`, until that says false.
  static bool each(const std::function<bool(const QImage&, const char* name)>& keep);
};

}  // namespace quorix::examples
