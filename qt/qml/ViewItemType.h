#pragma once

#include <QtQml/qqmlregistration.h>

#include "qt/quick/ViewItem.h"

namespace quorix::qml {

/// Tells the tools of QML that a `qt::ViewItem` is an item, which makes the widgets items as well.
struct ViewItemType {
  Q_GADGET
  QML_FOREIGN(quorix::qt::ViewItem)
  QML_ANONYMOUS
};

/// `SheetCloseReason.Swipe` and the others.
namespace SheetCloseReasons {
Q_NAMESPACE
QML_FOREIGN_NAMESPACE(quorix::qt)
QML_NAMED_ELEMENT(SheetCloseReason)
}  // namespace SheetCloseReasons

}  // namespace quorix::qml
