#pragma once

#include <QObject>
#include <QVariantList>
#include <vector>

namespace quorix::examples {

/// What the shopper means to buy: pieces of the one product, by size. Main thread.
class Bag : public QObject {
  Q_OBJECT
  Q_PROPERTY(int count READ count NOTIFY changed)
  Q_PROPERTY(QVariantList lines READ lineList NOTIFY changed)

 public:
  struct Line {
    QString size;
    int count;
  };

  using QObject::QObject;

  const std::vector<Line>& lines() const { return lines_; }
  int count() const;
  /// The lines as { size, count } each.
  QVariantList lineList() const;

  Q_INVOKABLE void add(const QString& size);
  /// Takes out every piece of that size.
  Q_INVOKABLE void remove(const QString& size);
  void clear();

 signals:
  void changed();

 private:
  std::vector<Line> lines_;
};

}  // namespace quorix::examples
