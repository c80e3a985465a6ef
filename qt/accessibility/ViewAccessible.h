#pragma once

#include <string>
#include <vector>

#include "platform/foundation/Export.h"
#include "qt/accessibility/ElementAccessible.h"

namespace quorix::qt {

/// A surface for assistive technology: a group of its scene's elements, a dialog if it is a sheet,
/// or, if the whole view is one element, that element itself.
class ViewAccessible : public ElementAccessible {
 public:
  explicit ViewAccessible(QObject* owner);
  ~ViewAccessible() override;

  /// Tells assistive technology, if it listens, what changed in the scene since the last call.
  QUORIX_EXPORT static void sceneChanged(QObject& owner);
  /// Tells where the focus is: now, or on a later turn.
  QUORIX_EXPORT static void focusChanged(QObject& owner,
                                         Qt::ConnectionType when = Qt::DirectConnection);
  /// Tells if something modal covers it from now on, or no longer.
  QUORIX_EXPORT static void coverChanged(QObject& owner);

  bool isValid() const override { return object() != nullptr; }
  QObject* object() const override { return owner(); }
  QRect rect() const override;
  QString text(QAccessible::Text kind) const override;
  QAccessible::Role role() const override;
  QAccessible::State state() const override;
  QAccessibleInterface* focusChild() const override;

  QAccessibleInterface* parent() const override;
  QAccessibleInterface* child(int index) const override;
  QAccessibleInterface* childAt(int x, int y) const override;
  int childCount() const override;
  int indexOfChild(const QAccessibleInterface* child) const override;

 private:
  /// What assistive technology was last told of an element.
  struct Told {
    std::string label;
    std::string hint;
  };

  std::vector<Told> toTell() const;
  /// The view's only element.
  const render::AccessibilityElement* element() const override;
  void syncChildren() const;
  /// The interfaces of `Surface::accessibleViews`.
  std::vector<QAccessibleInterface*> views() const;
  /// The elements, then `views`.
  std::vector<QAccessibleInterface*> children() const;
  void update();
  void tell(QAccessible::Event event, std::size_t index);

  mutable std::vector<QAccessible::Id> elements_;
  std::vector<Told> told_;
  bool covered_;  ///< as told last
};

}  // namespace quorix::qt
