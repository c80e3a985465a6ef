#pragma once

#include <QtCore/qnamespace.h>

#include "platform/foundation/Export.h"

class QAccessibleInterface;
class QObject;

/// Views and sheets for Qt's accessibility. `owner` is the object of a `Surface`. The notices do
/// nothing while no assistive technology listens. Main thread.
namespace quorix::qt::ViewAccessible {

QAccessibleInterface* make(QObject& owner);

/// Tells what changed in the display list since the last call.
QUORIX_EXPORT void sceneChanged(QObject& owner);
/// Tells where the focus is: now, or on a later turn.
QUORIX_EXPORT void focusChanged(QObject& owner, Qt::ConnectionType when = Qt::DirectConnection);
/// Tells which surfaces something modal covers from now on, or no longer.
QUORIX_EXPORT void coverChanged();

}  // namespace quorix::qt::ViewAccessible
