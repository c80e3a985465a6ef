#pragma once

#include <QString>
#include <vector>

namespace quorix::examples {

/// The shopper's bag: pieces of the only product, by size.
class Bag {
 public:
  struct Line {
    QString size;
    int count;
  };

  const std::vector<Line>& lines() const { return lines_; }
  int count() const;

  void add(const QString& size);
  /// Removes all pieces of that size.
  void remove(const QString& size);

 private:
  std::vector<Line> lines_;
};

}  // namespace quorix::examples
