#pragma once

#include <functional>
#include <utility>

#include "platform/foundation/Export.h"
#include "platform/render/Scene.h"
#include "platform/text/TextEngine.h"

namespace quorix::render {

/// Content of another toolkit in a view tree: sizes itself and makes its own display list. May be
/// in only one place of one tree at a time. Main thread.
class QUORIX_EXPORT HostedContent {
 public:
  virtual ~HostedContent() = default;

  /// The size in points that the content chooses for the offer `proposal`.
  virtual layout::Size sizeThatFits(layout::ProposedSize proposal, text::TextEngine& engine,
                                    double scale) = 0;
  /// The display list of the content in an area of `size`, with its origin at zero.
  virtual Scene scene(layout::Size size, const Display& display, text::TextEngine& engine) = 0;

  /// Calls `changed` whenever the size or the display list may have changed.
  void onChange(std::function<void()> changed) { changed_ = std::move(changed); }

  /// Runs `update` and suppresses its change notices. For changes during an evaluation.
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
