#pragma once

#include "platform/layout/Element.h"
#include "platform/layout/Geometry.h"
#include "platform/layout/PixelGrid.h"
#include "platform/text/TextEngine.h"

namespace quorix::layout {

/// One layout pass: the parent proposes, the child chooses, the parent places; overflow is legal.
/// Each text is measured once for each width in a pass.
class Layout {
 public:
  Layout(text::TextEngine& engine, double scale) : engine_(engine), grid_(scale) {}

  /// The size that `element` chooses when offered `proposal`.
  Size measure(Element& element, ProposedSize proposal);

  /// Puts `element` and all below it in place. Frames are in exact points, leading on the left.
  void place(Element& element, Point origin, ProposedSize proposal);

 private:
  struct Chooser;
  struct Placer;

  /// What a stack offers each child along its axis.
  using Offers = std::vector<std::optional<double>>;
  Offers divide(Element& stack, ProposedSize proposal);
  Size measureText(Element& element, ProposedSize proposal);

  text::TextEngine& engine_;
  PixelGrid grid_;
};

/// Where an extent of `inner` starts inside one of `outer` when aligned.
double alignedOffset(HorizontalAlignment alignment, double outer, double inner);
double alignedOffset(VerticalAlignment alignment, double outer, double inner);
Point alignedOffset(Alignment alignment, Size outer, Size inner);

/// Turns a finished left-to-right layout of width `width` into its mirror image.
void mirror(Element& element, double width);

}  // namespace quorix::layout
