// The modifiers that change the proposed size.
#include <algorithm>
#include <optional>
#include <string>
#include <utility>

#include "platform/layout/Geometry.h"
#include "platform/swiftui/LayoutPass.h"
#include "platform/swiftui/Modifier.h"
#include "platform/swiftui/TreePrinter.h"

namespace quorix::swiftui {
namespace {

using layout::EdgeInsets;
using layout::ProposedSize;
using layout::Size;

class FixedFrame final : public LayoutModifier {
 public:
  FixedFrame(View content, std::optional<double> width, std::optional<double> height,
             layout::Alignment alignment)
      : LayoutModifier(std::move(content)), width_(width), height_(height), alignment_(alignment) {}

  Size measure(LayoutPass& in, Element& self, ProposedSize proposal) const override {
    const Size size = in.measure(self.child(), inside(proposal));
    return {width_.value_or(size.width), height_.value_or(size.height)};
  }
  void place(LayoutPass& in, Element& self, ProposedSize proposal) const override {
    in.placeAligned(self.child(), self.frame, alignment_, inside(proposal));
  }
  double leastWidth(LayoutPass& in, Element& self) const override {
    return width_ ? *width_ : in.leastWidth(self.child());
  }

 private:
  std::string description() const override {
    std::string bounds;
    if (width_) bounds += "width: " + number(*width_) + ", ";
    if (height_) bounds += "height: " + number(*height_) + ", ";
    return ".frame(" + bounds + "alignment: " + nameOf(alignment_) + ")";
  }
  ProposedSize inside(ProposedSize proposal) const {
    return {width_ ? width_ : proposal.width, height_ ? height_ : proposal.height};
  }

  std::optional<double> width_;
  std::optional<double> height_;
  layout::Alignment alignment_;
};

/// Takes the whole proposed width.
class MaxWidthFrame final : public LayoutModifier {
 public:
  MaxWidthFrame(View content, layout::Alignment alignment)
      : LayoutModifier(std::move(content)), alignment_(alignment) {}

  Size measure(LayoutPass& in, Element& self, ProposedSize proposal) const override {
    const Size size = in.measure(self.child(), proposal);
    return {proposal.width.value_or(size.width), size.height};
  }
  void place(LayoutPass& in, Element& self, ProposedSize proposal) const override {
    in.placeAligned(self.child(), self.frame, alignment_, proposal);
  }
  double leastWidth(LayoutPass& in, Element& self) const override {
    return in.leastWidth(self.child());
  }

 private:
  std::string description() const override {
    return ".frame(maxWidth: infinity, alignment: " + nameOf(alignment_) + ")";
  }

  layout::Alignment alignment_;
};

/// Has its content's ideal length and ignores the proposal.
class FixedSize final : public LayoutModifier {
 public:
  FixedSize(View content, bool horizontal, bool vertical)
      : LayoutModifier(std::move(content)), horizontal_(horizontal), vertical_(vertical) {}

  Size measure(LayoutPass& in, Element& self, ProposedSize proposal) const override {
    return in.measure(self.child(), inside(proposal));
  }
  void place(LayoutPass& in, Element& self, ProposedSize proposal) const override {
    in.place(self.child(), self.frame.origin, inside(proposal));
  }
  double leastWidth(LayoutPass& in, Element& self) const override {
    return horizontal_ ? in.measure(self, {}).width : in.leastWidth(self.child());
  }

 private:
  std::string description() const override {
    return ".fixedSize(horizontal: " + std::string(nameOf(horizontal_)) +
           ", vertical: " + std::string(nameOf(vertical_)) + ")";
  }
  ProposedSize inside(ProposedSize proposal) const {
    if (horizontal_) proposal.width.reset();
    if (vertical_) proposal.height.reset();
    return proposal;
  }

  bool horizontal_;
  bool vertical_;
};

/// Takes the largest size that fits and has the aspect ratio of its content's ideal size.
class ScaledToFit final : public LayoutModifier {
 public:
  using LayoutModifier::LayoutModifier;

  Size measure(LayoutPass& in, Element& self, ProposedSize proposal) const override {
    return in.measure(self.child(), fitting(in.measure(self.child(), {}), proposal));
  }
  void place(LayoutPass& in, Element& self, ProposedSize proposal) const override {
    in.place(self.child(), self.frame.origin, fitting(in.measure(self.child(), {}), proposal));
  }
  double leastWidth(LayoutPass&, Element&) const override { return 0; }

 private:
  std::string description() const override { return ".scaledToFit()"; }

  /// The largest size with the aspect ratio of `ideal` that fits into `proposal`.
  static ProposedSize fitting(Size ideal, ProposedSize proposal) {
    if (ideal.width <= 0 || ideal.height <= 0) return proposal;
    if (!proposal.width && !proposal.height) return exactly(ideal);
    const double byWidth = proposal.width.value_or(layout::infinity) / ideal.width;
    const double byHeight = proposal.height.value_or(layout::infinity) / ideal.height;
    const double scale = std::min(byWidth, byHeight);
    return {ideal.width * scale, ideal.height * scale};
  }
};

std::optional<double> shrunk(std::optional<double> length, double by) {
  if (!length) return std::nullopt;
  return std::max(0.0, *length - by);
}

class Padding final : public LayoutModifier {
 public:
  Padding(View content, EdgeInsets insets, std::optional<layout::Edges> edges, double length)
      : LayoutModifier(std::move(content)), insets_(insets), edges_(edges), length_(length) {}

  Size measure(LayoutPass& in, Element& self, ProposedSize proposal) const override {
    const Size size = in.measure(self.child(), inside(proposal));
    return {size.width + across(), size.height + insets_.top + insets_.bottom};
  }

  void place(LayoutPass& in, Element& self, ProposedSize proposal) const override {
    in.place(self.child(), {self.frame.left() + insets_.leading, self.frame.top() + insets_.top},
             inside(proposal));
  }

  double leastWidth(LayoutPass& in, Element& self) const override {
    return in.leastWidth(self.child()) + across();
  }

 private:
  std::string description() const override {
    return ".padding(" + (edges_ ? describe(*edges_) + ", " + number(length_) : describe(insets_)) +
           ")";
  }

  double across() const { return insets_.leading + insets_.trailing; }
  ProposedSize inside(ProposedSize proposal) const {
    return {shrunk(proposal.width, across()),
            shrunk(proposal.height, insets_.top + insets_.bottom)};
  }

  EdgeInsets insets_;
  // For printing, if the padding was given as edges and one length.
  std::optional<layout::Edges> edges_;
  double length_;
};

}  // namespace

View View::frame(std::optional<double> width, std::optional<double> height,
                 layout::Alignment alignment) const {
  return makeView<FixedFrame>(*this, width, height, alignment);
}

View View::frameMaxWidthInfinity(layout::Alignment alignment) const {
  return makeView<MaxWidthFrame>(*this, alignment);
}

View View::fixedSize(bool horizontal, bool vertical) const {
  return makeView<FixedSize>(*this, horizontal, vertical);
}

View View::scaledToFit() const { return makeView<ScaledToFit>(*this); }

View View::padding(double length) const { return padding({length, length, length, length}); }

View View::padding(EdgeInsets insets) const {
  return makeView<Padding>(*this, insets, std::nullopt, 0.0);
}

View View::padding(layout::Edges edges, double length) const {
  const EdgeInsets insets = {edges.top ? length : 0, edges.leading ? length : 0,
                             edges.bottom ? length : 0, edges.trailing ? length : 0};
  return makeView<Padding>(*this, insets, edges, length);
}

}  // namespace quorix::swiftui
