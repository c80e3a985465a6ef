#include <string>
#include <utility>

#include "platform/swiftui/Evaluator.h"
#include "platform/swiftui/Modifier.h"
#include "platform/swiftui/TreePrinter.h"

namespace quorix::swiftui {
namespace {

class Sheet final : public Modifier {
 public:
  Sheet(View content, Binding<bool> isPresented, View shown)
      : Modifier(std::move(content)),
        isPresented_(std::move(isPresented)),
        shown_(std::move(shown)) {}

  void evaluate(Evaluator& in, const Look& look, ElementList& out) const override {
    if (isPresented_.get()) in.result().presentation = Presentation{isPresented_, shown_};
    in.collect(content(), look, out);
  }

 private:
  std::string description() const override {
    return ".sheet(isPresented: " + std::string(nameOf(isPresented_.get())) + ")";
  }
  void printBelow(TreePrinter& to, int depth) const override { to.print(shown_, depth); }

  Binding<bool> isPresented_;
  View shown_;
};

class Detents final : public Modifier {
 public:
  Detents(View content, const PresentationDetents& detents)
      : Modifier(std::move(content)), detents_(detents) {}

  void evaluate(Evaluator& in, const Look& look, ElementList& out) const override {
    in.result().detents = detents_;
    in.collect(content(), look, out);
  }

 private:
  std::string description() const override {
    return ".presentationDetents(" + describe(detents_) + ")";
  }

  PresentationDetents detents_;
};

}  // namespace

View View::sheet(Binding<bool> isPresented, View content) const {
  return makeView<Sheet>(*this, std::move(isPresented), std::move(content));
}

View View::presentationDetents(PresentationDetents detents) const {
  return makeView<Detents>(*this, detents);
}

}  // namespace quorix::swiftui
