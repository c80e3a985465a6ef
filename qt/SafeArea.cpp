#include "qt/SafeArea.h"

#include <QEvent>
#include <QVariant>

#include "qt/WindowScene.h"

namespace quorix::qt {
namespace {

// A property of the window, because it may be set before a sheet exists.
constexpr const char* kProperty = "quorixSafeArea";

}  // namespace

void setSafeArea(QWindow& window, std::optional<QMargins> covered) {
  window.setProperty(kProperty, covered ? QVariant::fromValue(*covered) : QVariant());
}

QMargins SafeAreaWatcher::covered() const {
  const QVariant said = window_.property(kProperty);
  if (said.isValid()) return said.value<QMargins>();
  return own_ ? own_() : QMargins();
}

bool SafeAreaWatcher::eventFilter(QObject*, QEvent* event) {
  const bool said = event->type() == QEvent::DynamicPropertyChange &&
                    static_cast<QDynamicPropertyChangeEvent*>(event)->propertyName() == kProperty;
  if (said) changed_(covered());
  return false;
}

}  // namespace quorix::qt
