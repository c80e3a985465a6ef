#pragma once

#include <functional>
#include <utility>

#include "platform/foundation/Export.h"
#include "platform/layout/SelfSizing.h"
#include "platform/render/Display.h"
#include "platform/render/Scene.h"

namespace quorix::render {

/// Content of another toolkit that stands in a view tree: it answers for its own size and brings
/// its own scene. One host at a time; main thread.
class QUORIX_EXPORT HostedContent : public layout::SelfSizing {
 public:
  /// The content laid out in an area of `size`, with its origin at zero.
  virtual Scene scene(layout::Size size, const Display& display, text::TextEngine& engine) = 0;

  /// `changed` is called whenever size or scene may have become another.
  void onChange(std::function<void()> changed) { changed_ = std::move(changed); }

  /// Runs `update` and tells nobody of what it changes: for changes that the asking host makes.
  template <class Update>
  void updateQuietly(Update update) {
    const bool before = std::exchange(quiet_, true);
    update();
    quiet_ = before;
  }

 protected:
  void tellChanged() const {
    if (changed_ && !quiet_) changed_();
  }

 private:
  std::function<void()> changed_;
  bool quiet_ = false;
};

}  // namespace quorix::render
