#include "qt/SafeArea.h"

#include "qt/HostedWindow.h"

namespace quorix::qt {

void setSafeArea(QWindow& window, std::optional<QMargins> covered) {
  window.setProperty(safeAreaProperty, covered ? QVariant::fromValue(*covered) : QVariant());
}

}  // namespace quorix::qt
