#include "platform/swiftui/TextLook.h"

#include <utility>

#include "platform/swiftui/Descriptions.h"
#include "platform/swiftui/Evaluator.h"
#include "platform/swiftui/Look.h"
#include "platform/swiftui/Modifier.h"

namespace quorix::swiftui {
namespace looks {

void FontChoice::apply(Look& look) const { look.font = &font; }
std::string FontChoice::description() const { return ".font(" + describe(font) + ")"; }

void Weight::apply(Look& look) const { look.weight = weight; }
std::string Weight::description() const {
  return ".fontWeight(" + std::string(nameOf(weight)) + ")";
}

void Bold::apply(Look& look) const { look.weight = FontWeight::bold; }
std::string Bold::description() const { return ".bold()"; }

void Underline::apply(Look& look) const { look.underline = active; }
std::string Underline::description() const {
  return ".underline(" + std::string(nameOf(active)) + ", pattern: solid)";
}

void Strikethrough::apply(Look& look) const { look.strikethrough = active; }
std::string Strikethrough::description() const {
  return ".strikethrough(" + std::string(nameOf(active)) + ")";
}

void ForegroundColor::apply(Look& look) const { look.color = &color; }
std::string ForegroundColor::description() const {
  return ".foregroundColor(" + color.description() + ")";
}

void Case::apply(Look& look) const { look.textCase = value; }
std::string Case::description() const { return ".textCase(uppercase)"; }

void Resizable::apply(Look& look) const { look.resizable = true; }
std::string Resizable::description() const { return ".resizable(stretch)"; }

}  // namespace looks

namespace {

/// Changes the look of all below it.
template <class L>
class LookModifier final : public Modifier {
 public:
  LookModifier(View content, L look) : Modifier(std::move(content)), look_(std::move(look)) {}

  void evaluate(Evaluator& in, const Look& look, layout::Axis axis,
                ElementList& out) const override {
    Look inner = look;
    look_.apply(inner);
    in.collect(content(), inner, axis, out);
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
