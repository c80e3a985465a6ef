#pragma once

#include <QQmlComponent>
#include <QQmlEngine>

#include "bench/Shopper.h"

class QQuickItem;

namespace quorix::bench {

/// Makes score rows in QML: one engine and one component, compiled ahead of time and loaded once.
class QmlRows {
 public:
  /// `file` is "ScoreRow" or "LeanScoreRow".
  explicit QmlRows(const QString& file);

  /// A row of `width` points in `parent`, which does not own it.
  QQuickItem* make(const Shopper& shopper, QQuickItem* parent, double width);

 private:
  QQmlEngine engine_;
  QQmlComponent component_;
  QColor ink_ = inkColor();
  QColor faded_ = fadedColor();
};

}  // namespace quorix::bench
