#include "examples/shop/Bag.h"

#include <algorithm>
#include <numeric>

namespace quorix::examples {

int Bag::count() const {
  return std::accumulate(lines_.begin(), lines_.end(), 0,
                         [](int sum, const Line& line) { return sum + line.count; });
}

void Bag::add(const QString& size) {
  const auto line = std::ranges::find(lines_, size, &Line::size);
  if (line == lines_.end()) {
    lines_.push_back({size, 1});
  } else {
    ++line->count;
  }
}

void Bag::remove(const QString& size) {
  std::erase_if(lines_, [&](const Line& line) { return line.size == size; });
}

}  // namespace quorix::examples
