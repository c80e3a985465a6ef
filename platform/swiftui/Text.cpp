#include "platform/swiftui/Text.h"

#include <algorithm>
#include <utility>

#include "platform/foundation/LocalizedString.h"
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
  // A sum with looks of its own stays a part of its own: they are not the second text's.
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

/// How far a text gets smaller before a word in it breaks. What stands side by side (a price, its
/// name) is to be read whole; a paragraph is not made small for the sake of one endless word.
constexpr double smallestInRow = 0.25;
constexpr double smallestParagraph = 0.5;

/// Points; as much as a text engine's own rounding may take.
constexpr double roundingNoise = 1.0 / 32;

struct ShownText final : Element {
  ShownText(const ElementRules& kind, text::AttributedText words, const Look& look)
      : Element(kind),
        text(std::move(words)),
        spansWhenWrapped(look.inColumn),
        smallestPart(look.inRow ? smallestInRow : smallestParagraph) {
    isText = true;
    holdsText = true;
  }

  mutable text::AttributedText text;  // moved into the display list
  bool spansWhenWrapped;  ///< broken into lines, it takes the whole width that it was offered
  double smallestPart;    ///< of its size, before its longest word breaks
  double drawnAt = 1;     ///< the part of its size that it is drawn at
};

class TextNode final : public Node, public ElementRules {
 public:
  explicit TextNode(Text text) : text_(std::move(text)) {}

  void print(TreePrinter& to, int depth) const override { print(text_, to, depth); }

  void evaluate(Evaluator& in, const Look& look, layout::Axis, ElementList& out) const override {
    ++in.result().items;
    out.append(in.make<ShownText>(static_cast<const ElementRules&>(*this),
                                  look.attributed(text_, in.environment), look));
  }

  Size measure(LayoutPass& in, Element& element, ProposedSize proposal) const override {
    auto& self = static_cast<ShownText&>(element);
    const double width = proposal.width.value_or(infinity);
    // A text keeps all its lines, so a proposed height changes nothing; nor does a width beyond
    // its ideal one.
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
    // A text keeps its exact size: rounding must never make it break its lines anew.
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

  /// The part of its size that the text is drawn at in `width`.
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
