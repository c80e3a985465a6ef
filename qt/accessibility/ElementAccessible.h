#pragma once

#include <QAccessibleInterface>
#include <QPointer>

#include "qt/Surface.h"

namespace quorix::qt {

/// One element of a surface's scene for assistive technology. Holds the element's place in reading
/// order and reads the latest scene on each call.
class ElementAccessible : public QAccessibleInterface, public QAccessibleActionInterface {
 public:
  ElementAccessible(QObject* owner, int index) : owner_(owner), index_(index) {}

  bool isValid() const override;
  QObject* object() const override { return nullptr; }
  QWindow* window() const override;
  QRect rect() const override;
  QString text(QAccessible::Text kind) const override;
  void setText(QAccessible::Text, const QString&) override {}
  QAccessible::Role role() const override;
  QAccessible::State state() const override;

  QAccessibleInterface* parent() const override;
  QAccessibleInterface* child(int) const override { return nullptr; }
  QAccessibleInterface* childAt(int, int) const override { return nullptr; }
  int childCount() const override { return 0; }
  int indexOfChild(const QAccessibleInterface*) const override { return -1; }

  void* interface_cast(QAccessible::InterfaceType type) override;
  QStringList actionNames() const override;
  void doAction(const QString& name) override;
  QStringList keyBindingsForAction(const QString&) const override { return {}; }

 protected:
  QObject* owner() const { return owner_; }
  /// Null while its owner is being deleted.
  Surface* surface() const { return Surface::of(owner_); }
  /// Null if there is none any more.
  virtual const render::AccessibilityElement* element() const;

 private:
  QPointer<QObject> owner_;
  int index_;
};

}  // namespace quorix::qt
