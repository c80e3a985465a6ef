#pragma once

#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <memory>
#include <vector>

#include "bench/Subjects.h"

namespace quorix::bench {

/// A list in QML with one row for each shopper. `taken` counts the rows that came into sight.
class RowList {
 public:
  enum class Rows { ours, peer, empty };

  explicit RowList(Rows rows);
  std::unique_ptr<QQuickItem> make(QQuickItem& parent, const std::vector<Shopper>& shoppers,
                                   bool reuse);

 private:
  QQmlEngine engine_;
  QQmlComponent component_{&engine_};
};

}  // namespace quorix::bench
