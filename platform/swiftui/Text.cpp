#include "platform/swiftui/Text.h"

#include <algorithm>
#include <utility>

#include "platform/foundation/StringTable.h"
#include "platform/swiftui/DisplayListBuilder.h"
#include "platform/swiftui/Evaluator.h"
#include "platform/swiftui/LayoutPass.h"
#include "platform/swiftui/TreePrinter.h"

namespace quorix::swiftui {

Text Text::with(TextLook look) const {
  Text copy = *this;
  copy.looks_.push_back(std::move(look));
  return copy;
}

Text Text::font(Font font) const { return with(looks::FontChoice{std::move(font)}); }

Text Text::fontWeight(FontWeight weight) const { return with(looks::Weight{weight}); }

Text Text::bold() const { return with(looks::Bold{}); }

Text Text::underline(bool active) const { return with(looks::Underline{active}); }

Text Text::foregroundColor(Color color) const {
  return with(looks::ForegroundColor{std::move(color)});
}

Text operator+(Text first, Text second) {
  // If the sum has its own looks, keep it as one part, because they do not apply to the second
  // text.
  if (!first.parts_.empty() && first.looks_.empty()) {
    first.parts_.push_back(std::move(second));
    return first;
  }
  Text sum = Text::verbatim("");
  sum.parts_ = {std::move(first), std::move(second)};
  return sum;
}

std::string Text::resolved(std::string_view language) const {
  if (parts_.empty()) {
    return localized_ ? foundation::localizedString(text_, arguments_, language) : text_;
  }
  std::string words;
  for (const Text& part : parts_) words += part.resolved(language);
  return words;
}

namespace {

using layout::infinity;
using layout::ProposedSize;
using layout::Size;

/// How far a text may shrink before a word in it breaks. Texts in a row (a price, its name) must
/// stay readable as whole words. A paragraph shrinks less: one very long word must not make all of
/// it small.
constexpr double smallestInRow = 0.25;
constexpr double smallestParagraph = 0.5;

/// Points; covers the rounding error of a text engine.
constexpr double roundingNoise = 1.0 / 32;

struct ShownText final : Element {
  ShownText(const ElementRules& kind, text::AttributedText words, const Look& look)
      : Element(kind),
        text(std::move(words)),
        spansWhenWrapped(look.stack == layout::Axis::vertical),
        smallestPart(look.stack == layout::Axis::horizontal ? smallestInRow : smallestParagraph) {
    isText = true;
    holdsText = true;
  }

  mutable text::AttributedText text;  // moved into the display list
  bool spansWhenWrapped;  ///< if it has several lines, it takes the whole proposed width
  double smallestPart;    ///< smallest factor of the font size before a word breaks
  double drawnAt = 1;     ///< factor of the font size
};

class TextNode final : public Node, public ElementRules {
 public:
  explicit TextNode(Text text) : text_(std::move(text)) {}

  void print(TreePrinter& to, int depth) const override { print(text_, to, depth); }

  void evaluate(Evaluator& in, const Look& look, ElementList& out) const override {
    ++in.result().items;
    out.append(in.make<ShownText>(static_cast<const ElementRules&>(*this),
                                  look.attributed(text_, in.environment), look));
  }

  Size measure(LayoutPass& in, Element& element, ProposedSize proposal) const override {
    auto& self = static_cast<ShownText&>(element);
    const double width = proposal.width.value_or(infinity);
    // The result does not depend on the proposed height, because a text keeps all its lines, nor on
    // a width above the ideal one.
    for (const MeasuredSize* known = self.measured; known; known = known->next) {
      const double earlier = known->proposal.width.value_or(infinity);
      if (earlier == width || (earlier == infinity && known->size.width <= width))
        return known->size;
    }
    if (width != infinity) {
      const Size ideal = in.measure(self, {std::nullopt, proposal.height});
      if (ideal.width <= width) return ideal;
    }
    const double part = drawnPart(in, self, width);
    const text::TextMetrics metrics = part == 1 ? in.engine.measure(self.text, width)
                                                : in.engine.measure(self.text.scaled(part), width);
    const Size size = in.grid.ceil(metrics.size);
    const bool spans = self.spansWhenWrapped && width != infinity;
    return {spans ? std::max(width, size.width) : size.width, size.height};
  }

  void place(LayoutPass& in, Element& element, ProposedSize proposal) const override {
    auto& self = static_cast<ShownText&>(element);
    self.drawnAt = drawnPart(in, self, proposal.width.value_or(infinity));
  }

  double leastWidth(LayoutPass& in, Element& self) const override {
    return in.grid.ceil(in.engine.leastWidth(static_cast<ShownText&>(self).text));
  }

  void show(DisplayListBuilder& to, const Element& element) const override {
    const auto& self = static_cast<const ShownText&>(element);
    if (auto* described = to.describe(render::Role::staticText, to.onPixels(self.frame))) {
      for (const text::Run& run : self.text.runs) described->label += run.text;
    }
    // Do not round the size: the text could break its lines differently.
    const layout::Rect frame = {to.onPixels(self.frame).origin, self.frame.size};
    to.list.items.push_back(render::TextItem{
        frame, self.drawnAt == 1 ? std::move(self.text) : self.text.scaled(self.drawnAt)});
  }

 private:
  static void print(const Text& part, TreePrinter& to, int depth) {
    to.line(depth, part.parts().empty() ? "Text(" + describe(part) + ")" : "Text");
    for (const Text& below : part.parts()) print(below, to, depth + 1);
    for (const TextLook& own : part.looks()) {
      to.line(depth + 2, std::visit([](const auto& look) { return look.description(); }, own));
    }
  }

  /// The factor of the font size at which the text is drawn in `width`.
  static double drawnPart(LayoutPass& in, ShownText& self, double width) {
    if (width == infinity || in.measure(self, {}).width <= width) return 1;
    const double least = in.leastWidth(self);
    if (least <= width) return 1;
    const double part = (in.grid.floor(width) - roundingNoise) / least;
    return part < self.smallestPart ? 1 : part;
  }

  Text text_;
};

}  // namespace

View::View(Text text) : View(makeView<TextNode>(std::move(text))) {}

}  // namespace quorix::swiftui
