#include "examples/shop/Bag.h"

#include <QVariantMap>
#include <algorithm>
#include <numeric>

namespace quorix::examples {

int Bag::count() const {
  return std::accumulate(lines_.begin(), lines_.end(), 0,
                         [](int sum, const Line& line) { return sum + line.count; });
}

QVariantList Bag::lineList() const {
  QVariantList list;
  for (const Line& line : lines_) {
    list.append(QVariantMap{{"size", line.size}, {"count", line.count}});
  }
  return list;
}

void Bag::add(const QString& size) {
  const auto line = std::ranges::find(lines_, size, &Line::size);
  if (line == lines_.end()) {
    lines_.push_back({size, 1});
  } else {
    ++line->count;
  }
  emit changed();
}

void Bag::remove(const QString& size) {
  if (std::erase_if(lines_, [&](const Line& line) { return line.size == size; }) > 0) {
    emit changed();
  }
}

void Bag::clear() {
  lines_.clear();
  emit changed();
}

}  // namespace quorix::examples
