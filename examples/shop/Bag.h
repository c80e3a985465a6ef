#pragma once

#include <QString>
#include <vector>

namespace quorix::examples {

/// What the shopper means to buy: pieces of the one product, by size.
class Bag {
 public:
  struct Line {
    QString size;
    int count;
  };

  const std::vector<Line>& lines() const { return lines_; }
  int count() const;

  void add(const QString& size);
  /// Takes out every piece of that size.
  void remove(const QString& size);

 private:
  std::vector<Line> lines_;
};

}  // namespace quorix::examples
