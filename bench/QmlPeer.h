#pragma once

#include <QQmlComponent>
#include <QQmlEngine>

#include "bench/Subject.h"

class QQuickItem;

namespace quorix::bench {

/// Makes widgets in QML: one engine and one component, compiled ahead of time and loaded once.
class QmlPeer {
 public:
  /// `file` is that of one of the peers: "ScoreRow", "LeanScoreRow", "InfoWidget".
  explicit QmlPeer(const QString& file);

  /// One of `width` points in `parent`, which does not own it.
  QQuickItem* make(const Subject& subject, QQuickItem* parent, double width);

 private:
  QQmlEngine engine_;
  QQmlComponent component_;
};

}  // namespace quorix::bench
