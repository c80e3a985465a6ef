#pragma once

#include "platform/layout/Element.h"
#include "platform/layout/Geometry.h"
#include "platform/layout/PixelGrid.h"
#include "platform/layout/SafeArea.h"
#include "platform/layout/StackDistribution.h"
#include "platform/text/TextEngine.h"

namespace quorix::layout {

/// One layout pass: the parent proposes, the child chooses, the parent places; overflow is legal.
/// Each text is measured once for each width in a pass.
class Layout {
 public:
  Layout(text::TextEngine& engine, double scale, const SafeArea& safeArea = {})
      : engine_(engine), grid_(scale), safeArea_(safeArea) {}

  /// The size that `element` chooses when offered `proposal`.
  Size measure(Element& element, ProposedSize proposal);

  /// Puts `element` and all below it in place. Frames are in exact points, leading on the left.
  void place(Element& element, Point origin, ProposedSize proposal);

 private:
  struct Chooser;
  struct Placer;
  struct LeastWidth;

  /// What a stack offers each child along its axis.
  using Offers = std::vector<std::optional<double>>;
  Offers divide(Element& stack, ProposedSize proposal);
  /// What an element that is scaled to fit offers its child.
  ProposedSize fittingChild(Element& fit, ProposedSize proposal);
  Size measureText(Element& element, ProposedSize proposal);
  /// The part of its size that a text is drawn at where it is offered `proposal`.
  double drawnPart(Element& text, ProposedSize proposal);
  /// The least width at which no word in `element` breaks, as far as that depends on its width.
  double leastWidth(Element& element);
  /// Whether one of a row's children that got `lengths` breaks inside a word. Notes in `children`
  /// what each needs.
  bool breaksWords(Element& stack, std::vector<StackChild>& children,
                   const std::vector<double>& lengths);

  text::TextEngine& engine_;
  PixelGrid grid_;
  SafeArea safeArea_;
};

/// Turns a finished left-to-right layout of width `width` into its mirror image.
void mirror(Element& element, double width);

}  // namespace quorix::layout
