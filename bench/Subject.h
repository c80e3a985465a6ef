#pragma once

#include <QVariantMap>

#include "platform/swiftui/View.h"

class QWidget;

namespace quorix::bench {

/// What is compared: a widget of ours, and what the same is made of in QML and in Qt Widgets. The
/// peers get their texts ready made; ours decodes, looks up and formats its own. Needs an
/// application object; main thread.
class Subject {
 public:
  virtual ~Subject() = default;

  /// A builder call, and all that it takes until there is something to paint.
  virtual swiftui::View ours() const = 0;
  /// The initial properties of the one in QML.
  virtual QVariantMap properties() const = 0;
  /// The one in Qt Widgets, in `parent`, which owns it unless it is deleted before.
  virtual QWidget* labels(QWidget* parent) const = 0;
};

}  // namespace quorix::bench
