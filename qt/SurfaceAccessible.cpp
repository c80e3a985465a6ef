#include <QAccessibleObject>
#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "qt/Surface.h"

namespace quorix::qt {
namespace {

QAccessible::Role roleOf(render::Role role) {
  switch (role) {
    case render::Role::staticText:
      return QAccessible::StaticText;
    case render::Role::button:
      return QAccessible::Button;
    case render::Role::heading:
      return QAccessible::Heading;
    case render::Role::image:
      return QAccessible::Graphic;
    case render::Role::link:
      return QAccessible::Link;
  }
  return QAccessible::StaticText;
}

/// One element of a surface. Holds the element's place in reading order and reads the latest
/// display list on each call.
class ElementAccessible : public QAccessibleObject, public QAccessibleActionInterface {
 public:
  ElementAccessible(QObject* owner, int index) : QAccessibleObject(owner), index_(index) {}

  bool isValid() const override { return element() != nullptr; }
  QObject* object() const override { return nullptr; }
  QWindow* window() const override {
    const Surface* shown = surface();
    return shown ? shown->accessibleWindow() : nullptr;
  }
  QRect rect() const override {
    const render::AccessibilityElement* found = element();
    return found ? surface()->onScreen(found->frame) : QRect();
  }

  QString text(QAccessible::Text kind) const override {
    const render::AccessibilityElement* found = element();
    if (found && kind == QAccessible::Name) return QString::fromStdString(found->label);
    const bool isHint = kind == QAccessible::Description || kind == QAccessible::Help;
    return found && isHint ? QString::fromStdString(found->hint) : QString();
  }

  QAccessible::Role role() const override {
    const render::AccessibilityElement* found = element();
    return found ? roleOf(found->role) : QAccessible::NoRole;
  }

  QAccessible::State state() const override {
    QAccessible::State state;
    const render::AccessibilityElement* found = element();
    state.invalid = !found;
    if (!found) return state;
    const bool acts = found->action != nullptr;
    const Surface& shown = *surface();
    state.invisible = !shown.isShown() || shown.isCovered();
    state.offscreen = shown.responder().isScrolledAway(found->frame);
    state.readOnly = !acts;
    state.focusable = acts && !state.invisible;
    state.focused = acts && shown.responder().focusFrame() == found->frame;
    return state;
  }

  QAccessibleInterface* parent() const override {
    return owner() ? QAccessible::queryAccessibleInterface(owner()) : nullptr;
  }
  QAccessibleInterface* child(int) const override { return nullptr; }
  int childCount() const override { return 0; }
  int indexOfChild(const QAccessibleInterface*) const override { return -1; }

  void* interface_cast(QAccessible::InterfaceType type) override {
    const bool acts = type == QAccessible::ActionInterface && element();
    return acts ? static_cast<QAccessibleActionInterface*>(this) : nullptr;
  }
  QStringList actionNames() const override {
    const render::AccessibilityElement* found = element();
    if (!found || !found->action) return {};
    return {pressAction(), setFocusAction()};
  }
  void doAction(const QString& name) override {
    // A reader may keep the interface of a view that has more elements by now.
    if (!element() || surface()->isCovered()) return;
    Surface& shown = *surface();
    if (name == setFocusAction() && shown.responder().focusElement(index_)) shown.takeFocus();
    if (name == pressAction()) shown.responder().activate(index_);  // may delete the surface
  }
  QStringList keyBindingsForAction(const QString&) const override { return {}; }

 protected:
  QObject* owner() const { return QAccessibleObject::object(); }
  /// Null while its owner is being deleted.
  Surface* surface() const { return Surface::of(owner()); }
  /// Null if there is none any more.
  virtual const render::AccessibilityElement* element() const {
    const Surface* shown = surface();
    if (!shown) return nullptr;
    const auto& elements = shown->responder().elements();
    const auto index = static_cast<std::size_t>(index_);
    return index < elements.size() ? &elements[index] : nullptr;
  }

 private:
  int index_;
};

void say(QAccessible::Event what, QAccessibleInterface* about) {
  QAccessibleEvent event(about, what);
  QAccessible::updateAccessibility(&event);
}

/// A surface: a group of its elements, a dialog if it is a sheet, or, if the whole view is one
/// element, that element itself.
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
      if (before[i].first != told_[i].first) tell(QAccessible::NameChanged, i);
      if (before[i].second != told_[i].second) tell(QAccessible::DescriptionChanged, i);
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

  bool isValid() const override { return QAccessibleObject::isValid(); }
  QObject* object() const override { return owner(); }
  QRect rect() const override {
    const Surface* shown = surface();
    return shown ? shown->onScreen() : QRect();
  }

  QString text(QAccessible::Text kind) const override {
    const Surface* shown = surface();
    if (!shown || element()) return ElementAccessible::text(kind);
    if (!shown->isDialog() || kind != QAccessible::Name) return {};
    // A dialog is named after its first text without an action, or else after its page.
    for (const auto& element : shown->responder().elements()) {
      if (!element.action) return QString::fromStdString(element.label);
    }
    const auto* page = child(static_cast<int>(shown->responder().elements().size()));
    return page ? page->text(kind) : QString();
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
  QAccessibleInterface* child(int index) const override { return children().value(index); }
  int childCount() const override { return static_cast<int>(children().size()); }
  int indexOfChild(const QAccessibleInterface* child) const override {
    return static_cast<int>(children().indexOf(child));
  }

 private:
  /// The view's only element.
  const render::AccessibilityElement* element() const override {
    const Surface* shown = surface();
    if (!shown || shown->isDialog()) return nullptr;
    const auto& elements = shown->responder().elements();
    return elements.size() == 1 ? &elements.front() : nullptr;
  }

  /// An element's label and hint.
  using Told = std::pair<std::string, std::string>;

  std::vector<Told> toTell() const {
    std::vector<Told> now;
    for (const auto& element : surface()->responder().elements()) {
      now.emplace_back(element.label, element.hint);
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
          new ElementAccessible(owner(), static_cast<int>(elements_.size()))));
    }
  }

  /// The elements, then the interfaces of `Surface::accessibleViews`.
  QList<QAccessibleInterface*> children() const {
    syncChildren();
    QList<QAccessibleInterface*> all;
    for (const auto id : elements_) all.push_back(QAccessible::accessibleInterface(id));
    if (!surface()) return all;
    for (QObject* view : surface()->accessibleViews()) {
      QAccessibleInterface* known = QAccessible::queryAccessibleInterface(view);
      if (known) all.push_back(known);
    }
    return all;
  }

  mutable std::vector<QAccessible::Id> elements_;
  std::vector<Told> told_;  ///< of each element, as told last
  bool covered_;            ///< as told last
};

}  // namespace

QAccessibleInterface* Surface::makeAccessible(const QString&, QObject* object) {
  return of(object) ? new SurfaceAccessible(object) : nullptr;
}

void Surface::tellScene() {
  if (auto* told = SurfaceAccessible::listening(object_)) told->sceneChanged();
}

void Surface::tellFocus(bool later) {
  if (!areRead()) return;
  const auto tell = [&owner = object_] {
    if (auto* told = SurfaceAccessible::listening(owner)) told->focusChanged();
  };
  QMetaObject::invokeMethod(&object_, tell, later ? Qt::QueuedConnection : Qt::DirectConnection);
}

void Surface::tellCover() {
  if (!areRead()) return;
  forEach([](Surface& surface) {
    if (auto* told = SurfaceAccessible::listening(surface.object())) told->coverChanged();
  });
}

}  // namespace quorix::qt
