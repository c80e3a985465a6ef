#include "platform/swiftui/Look.h"

#include <algorithm>
#include <functional>
#include <string>
#include <utility>
#include <variant>

#include "platform/foundation/UnicodeText.h"
#include "platform/swiftui/Evaluator.h"
#include "platform/swiftui/Modifier.h"
#include "platform/swiftui/TreePrinter.h"
#include "platform/text/TextBound.h"

namespace quorix::swiftui {
namespace {

constexpr graphics::RGBA clear = {0, 0, 0, 0};

text::ResolvedFont resolvedFont(const Look& look, const Environment& environment) {
  static const Font systemFont;
  const Font& font = look.font ? *look.font : systemFont;
  const double scaling = font.scales() ? scaleFactor(font.textStyle(), environment.textSize) : 1;
  return {font.name(), font.size() * scaling, look.weight.value_or(FontWeight::regular)};
}

std::string cased(std::string words, std::optional<TextCase> textCase,
                  const std::string& language) {
  return textCase ? foundation::uppercased(words, language) : std::move(words);
}

/// Appends the runs of `text` in the look `look`. The text's own looks are applied from the last to
/// the first, so the first one wins.
void appendRuns(const Text& text, Look look, const Environment& environment,
                std::vector<text::Run>& runs) {
  for (auto own = text.looks().rbegin(); own != text.looks().rend(); ++own) {
    std::visit([&](const auto& modifier) { modifier.apply(look); }, *own);
  }
  for (const Text& part : text.parts()) appendRuns(part, look, environment, runs);
  if (!text.parts().empty()) return;
  // Cut the text before the change of case, which takes as long as shaping for a very long text.
  runs.push_back({cased(text::bounded(text.resolved(environment.language)), look.textCase,
                        environment.language),
                  resolvedFont(look, environment), look.drawnColor(environment), look.underline,
                  look.strikethrough});
}

}  // namespace

graphics::RGBA drawnColor(const Color& color, const Environment& environment) {
  return color.resolve(environment.appearance).value_or(clear);
}

graphics::RGBA Look::drawnColor(const Environment& environment) const {
  if (color) return swiftui::drawnColor(*color, environment);
  const bool dark = environment.appearance == graphics::Appearance::dark;
  return dark ? graphics::RGBA{255, 255, 255, 255} : graphics::RGBA{0, 0, 0, 255};
}

text::AttributedText Look::attributed(const Text& text, const Environment& environment) const {
  text::AttributedText result;
  result.direction = environment.direction;
  appendRuns(text, *this, environment, result.runs);
  // Drop empty runs, which would raise the line to their font's height; keep one if all are empty.
  const auto says = [](const text::Run& run) { return !run.text.empty(); };
  if (std::any_of(result.runs.begin(), result.runs.end(), says)) {
    std::erase_if(result.runs, std::not_fn(says));
  } else {
    result.runs.resize(1);
  }
  text::bound(result, stack == layout::Axis::horizontal ? text::mostInRow : text::mostOfText);
  return result;
}

namespace looks {

std::string FontChoice::description() const { return ".font(" + describe(font) + ")"; }

std::string Weight::description() const {
  return ".fontWeight(" + std::string(nameOf(weight)) + ")";
}

std::string Underline::description() const {
  return ".underline(" + std::string(nameOf(active)) + ", pattern: solid)";
}

std::string Strikethrough::description() const {
  return ".strikethrough(" + std::string(nameOf(active)) + ")";
}

std::string ForegroundColor::description() const {
  return ".foregroundColor(" + color.description() + ")";
}

}  // namespace looks

namespace {

/// Changes the look of all descendants.
template <class L>
class LookModifier final : public Modifier {
 public:
  LookModifier(View content, L look) : Modifier(std::move(content)), look_(std::move(look)) {}

  void evaluate(Evaluator& in, const Look& look, ElementList& out) const override {
    Look inner = look;
    look_.apply(inner);
    in.collect(content(), inner, out);
  }

 private:
  std::string description() const override { return look_.description(); }

  L look_;
};

template <class L>
View with(const View& content, L look) {
  return makeView<LookModifier<L>>(content, std::move(look));
}

}  // namespace

View View::font(Font font) const { return with(*this, looks::FontChoice{std::move(font)}); }
View View::fontWeight(FontWeight weight) const { return with(*this, looks::Weight{weight}); }
View View::underline(bool active) const { return with(*this, looks::Underline{active}); }
View View::strikethrough(bool active) const { return with(*this, looks::Strikethrough{active}); }
View View::foregroundColor(Color color) const {
  return with(*this, looks::ForegroundColor{std::move(color)});
}
View View::textCase(TextCase value) const { return with(*this, looks::Case{value}); }
View View::resizable() const { return with(*this, looks::Resizable{}); }

}  // namespace quorix::swiftui
