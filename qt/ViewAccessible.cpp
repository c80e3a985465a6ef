#include "qt/ViewAccessible.h"

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "qt/ElementAccessible.h"

namespace quorix::qt {
namespace {

void say(QAccessible::Event what, QAccessibleInterface* about) {
  QAccessibleEvent event(about, what);
  QAccessible::updateAccessibility(&event);
}

/// A surface for assistive technology: a group of its elements, a dialog if it is a sheet, or, if
/// the whole view is one element, that element itself.
class SurfaceAccessible final : public ElementAccessible {
 public:
  explicit SurfaceAccessible(QObject* owner)
      : ElementAccessible(owner, 0), told_(toTell()), covered_(surface()->isCovered()) {}
  ~SurfaceAccessible() override {
    for (const QAccessible::Id id : elements_) QAccessible::deleteAccessibleInterface(id);
  }

  /// The interface of `owner`, made on first use; null while no assistive technology listens.
  static SurfaceAccessible* listening(QObject& owner) {
    if (!Surface::areRead()) return nullptr;
    return dynamic_cast<SurfaceAccessible*>(QAccessible::queryAccessibleInterface(&owner));
  }

  /// Tells what changed in the display list since the last call.
  void sceneChanged() {
    const std::vector<Told> before = std::exchange(told_, toTell());
    const std::size_t common = std::min(before.size(), told_.size());
    for (std::size_t i = told_.size(); i < elements_.size(); ++i) {
      say(QAccessible::ObjectHide, QAccessible::accessibleInterface(elements_[i]));
    }
    const bool wasSole = before.size() == 1 && !surface()->isDialog();
    if (wasSole != (element() != nullptr)) say(QAccessible::ObjectReorder, this);
    syncChildren();
    for (std::size_t i = common; i < told_.size(); ++i) tell(QAccessible::ObjectShow, i);
    for (std::size_t i = 0; i < common; ++i) {
      if (before[i].label != told_[i].label) tell(QAccessible::NameChanged, i);
      if (before[i].hint != told_[i].hint) tell(QAccessible::DescriptionChanged, i);
    }
  }

  void focusChanged() {
    QAccessibleInterface* focused = focusChild();
    say(QAccessible::Focus, focused ? focused : this);
  }

  // Screen readers cache: without Hide they would go on reading what is behind a sheet.
  void coverChanged() {
    const Surface* shown = surface();
    if (!shown || std::exchange(covered_, shown->isCovered()) == covered_) return;
    if (!shown->isShown()) return;
    const auto event = covered_ ? QAccessible::ObjectHide : QAccessible::ObjectShow;
    say(event, this);
    if (element()) return;
    for (std::size_t i = 0; i < told_.size(); ++i) tell(event, i);
  }

  bool isValid() const override { return object() != nullptr; }
  QObject* object() const override { return owner(); }
  QRect rect() const override {
    const Surface* shown = surface();
    return shown ? shown->onScreen() : QRect();
  }

  QString text(QAccessible::Text kind) const override {
    if (element()) return ElementAccessible::text(kind);
    const Surface* shown = surface();
    if (!shown || !shown->isDialog() || kind != QAccessible::Name) return {};
    // A dialog is named after its first text without an action, or else after its page.
    for (const auto& element : shown->responder().elements()) {
      if (!element.action) return QString::fromStdString(element.label);
    }
    const auto all = children();
    return all.size() > elements_.size() ? all[elements_.size()]->text(kind) : QString();
  }

  QAccessible::Role role() const override {
    if (element()) return ElementAccessible::role();
    const Surface* shown = surface();
    return shown && shown->isDialog() ? QAccessible::Dialog : QAccessible::Grouping;
  }

  QAccessible::State state() const override {
    const Surface* shown = surface();
    if (!shown || element()) return ElementAccessible::state();
    QAccessible::State state;
    state.invisible = !shown->isShown() || shown->isCovered();
    state.modal = shown->isDialog() && !shown->isCovered();
    state.active = state.modal && shown->isShown();
    return state;
  }

  QAccessibleInterface* focusChild() const override {
    const auto all = children();
    const auto focused = std::ranges::find_if(all, [](auto* one) { return one->state().focused; });
    return focused == all.end() ? nullptr : *focused;
  }
  QAccessibleInterface* parent() const override {
    const Surface* shown = surface();
    QObject* above = shown ? shown->accessibleParent() : nullptr;
    return above ? QAccessible::queryAccessibleInterface(above) : nullptr;
  }
  QAccessibleInterface* child(int index) const override {
    const auto all = children();
    const auto at = static_cast<std::size_t>(index);
    return at < all.size() ? all[at] : nullptr;
  }
  QAccessibleInterface* childAt(int x, int y) const override {
    const auto all = children();
    const auto found = std::ranges::find_if(
        all, [&](auto* one) { return one->isValid() && one->rect().contains(x, y); });
    return found == all.end() ? nullptr : *found;
  }
  int childCount() const override { return static_cast<int>(children().size()); }
  int indexOfChild(const QAccessibleInterface* child) const override {
    const auto all = children();
    const auto found = std::ranges::find(all, child);
    return found == all.end() ? -1 : static_cast<int>(found - all.begin());
  }

 private:
  /// What assistive technology was last told of an element.
  struct Told {
    std::string label;
    std::string hint;
  };

  /// The view's only element.
  const render::AccessibilityElement* element() const override {
    const Surface* shown = surface();
    if (!shown || shown->isDialog()) return nullptr;
    const auto& elements = shown->responder().elements();
    return elements.size() == 1 ? &elements.front() : nullptr;
  }

  std::vector<Told> toTell() const {
    std::vector<Told> now;
    for (const auto& element : surface()->responder().elements()) {
      now.push_back({element.label, element.hint});
    }
    return now;
  }

  void tell(QAccessible::Event event, std::size_t index) {
    if (element()) return say(event, this);
    if (index < elements_.size()) say(event, QAccessible::accessibleInterface(elements_[index]));
  }

  void syncChildren() const {
    const Surface* shown = surface();
    const std::size_t count = shown && !element() ? shown->responder().elements().size() : 0;
    while (elements_.size() > count) {
      QAccessible::deleteAccessibleInterface(elements_.back());
      elements_.pop_back();
    }
    while (elements_.size() < count) {
      elements_.push_back(QAccessible::registerAccessibleInterface(
          new ElementAccessible(object(), static_cast<int>(elements_.size()))));
    }
  }

  /// The elements, then the interfaces of `Surface::accessibleViews`.
  std::vector<QAccessibleInterface*> children() const {
    syncChildren();
    std::vector<QAccessibleInterface*> all;
    for (const auto id : elements_) all.push_back(QAccessible::accessibleInterface(id));
    if (!surface()) return all;
    for (QObject* view : surface()->accessibleViews()) {
      QAccessibleInterface* known = QAccessible::queryAccessibleInterface(view);
      if (known) all.push_back(known);
    }
    return all;
  }

  mutable std::vector<QAccessible::Id> elements_;
  std::vector<Told> told_;
  bool covered_;  ///< as told last
};

}  // namespace

QAccessibleInterface* ViewAccessible::make(QObject& owner) { return new SurfaceAccessible(&owner); }

void ViewAccessible::sceneChanged(QObject& owner) {
  if (auto* told = SurfaceAccessible::listening(owner)) told->sceneChanged();
}

void ViewAccessible::focusChanged(QObject& owner, Qt::ConnectionType when) {
  if (!Surface::areRead()) return;
  const auto tell = [&owner] {
    if (auto* told = SurfaceAccessible::listening(owner)) told->focusChanged();
  };
  QMetaObject::invokeMethod(&owner, tell, when);
}

void ViewAccessible::coverChanged() {
  if (!Surface::areRead()) return;
  Surface::forEach([](Surface& surface) {
    if (auto* told = SurfaceAccessible::listening(surface.object())) told->coverChanged();
  });
}

}  // namespace quorix::qt
