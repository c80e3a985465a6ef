#pragma once

#include "platform/foundation/Arena.h"
#include "platform/layout/Geometry.h"
#include "platform/swiftui/Node.h"
#include "platform/text/TextEngine.h"

namespace quorix::swiftui {

/// One layout of an evaluation: the parent proposes, the child chooses, the parent places. A child
/// may be larger than its parent. Each element is measured once for each proposal, each text once
/// for each width.
class LayoutPass {
 public:
  LayoutPass(foundation::Arena& memory, text::TextEngine& textEngine, double scale,
             const layout::SafeArea& safe = {})
      : arena(memory), engine(textEngine), grid(scale), safeArea(safe) {}

  /// The size that `element` chooses for `proposal`.
  layout::Size measure(Element& element, layout::ProposedSize proposal);
  /// Places `element` and its descendants. Frames are exact (not on pixels), with leading on the
  /// left.
  void place(Element& element, layout::Point origin, layout::ProposedSize proposal);
  /// Places `element` by `alignment` in a frame of another size.
  void placeAligned(Element& element, const layout::Rect& within, layout::Alignment alignment,
                    layout::ProposedSize proposal);
  /// Places `element` if the size that it chooses is known.
  void setFrame(Element& element, const layout::Rect& frame, layout::ProposedSize proposal);
  /// The smallest width at which no word in `element` breaks; 0 if no word sets its width.
  double leastWidth(Element& element) { return element.rules->leastWidth(*this, element); }

  foundation::Arena& arena;
  text::TextEngine& engine;
  const layout::PixelGrid grid;
  const layout::SafeArea safeArea;
};

/// Mirrors a finished left-to-right layout of width `width`.
void mirror(Element& element, double width);

/// The length of an element along an axis without a proposal, if it has no ideal length itself.
inline constexpr double idealLength = 10;

inline layout::Size offeredSize(layout::ProposedSize proposal) {
  return {proposal.width.value_or(idealLength), proposal.height.value_or(idealLength)};
}
inline layout::ProposedSize exactly(layout::Size size) { return {size.width, size.height}; }

}  // namespace quorix::swiftui
