#pragma once

#include "platform/foundation/Arena.h"
#include "platform/layout/Geometry.h"
#include "platform/swiftui/Node.h"
#include "platform/text/TextEngine.h"

namespace quorix::swiftui {

/// One layout of an evaluation: the parent proposes, the child chooses, the parent places; overflow
/// is legal. Each element is measured once for each proposal, each text once for each width.
class LayoutPass {
 public:
  LayoutPass(foundation::Arena& memory, text::TextEngine& textEngine, double scale,
             const layout::SafeArea& safe = {})
      : arena(memory), engine(textEngine), grid(scale), safeArea(safe) {}

  /// The size that `element` chooses when offered `proposal`.
  layout::Size measure(Element& element, layout::ProposedSize proposal);
  /// Puts `element` and all below it in place. Frames are in exact points, leading on the left.
  void place(Element& element, layout::Point origin, layout::ProposedSize proposal);
  /// The same where `element` stands in a frame of another size, by `alignment`.
  void placeAligned(Element& element, const layout::Rect& within, layout::Alignment alignment,
                    layout::ProposedSize proposal);
  /// The same where the size that it chooses is known.
  void setFrame(Element& element, const layout::Rect& frame, layout::ProposedSize proposal);
  /// The least width at which no word in `element` breaks, as far as that depends on its width.
  double leastWidth(Element& element) { return element.rules->leastWidth(*this, element); }

  foundation::Arena& arena;
  text::TextEngine& engine;
  const layout::PixelGrid grid;
  const layout::SafeArea safeArea;
};

/// Turns a finished left-to-right layout of width `width` into its mirror image.
void mirror(Element& element, double width);

/// What an element takes along an axis on which nothing was proposed and it has no length of its
/// own.
inline constexpr double idealLength = 10;

inline layout::Size offeredSize(layout::ProposedSize proposal) {
  return {proposal.width.value_or(idealLength), proposal.height.value_or(idealLength)};
}
inline layout::ProposedSize exactly(layout::Size size) { return {size.width, size.height}; }

}  // namespace quorix::swiftui
