#include "tools/quorix/Names.h"

#include <algorithm>
#include <numeric>
#include <vector>

namespace quorix::tool {
namespace {

char lower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

/// The number of letters to add, remove, change or swap with their neighbour to turn `a` into `b`.
std::size_t distance(std::string_view a, std::string_view b) {
  std::vector<std::size_t> beforeLast(b.size() + 1), last(b.size() + 1), row(b.size() + 1);
  std::iota(last.begin(), last.end(), 0);
  for (std::size_t i = 1; i <= a.size(); ++i) {
    row[0] = i;
    for (std::size_t j = 1; j <= b.size(); ++j) {
      const bool same = lower(a[i - 1]) == lower(b[j - 1]);
      row[j] = std::min({last[j] + 1, row[j - 1] + 1, last[j - 1] + (same ? 0 : 1)});
      const bool swapped = i > 1 && j > 1 && lower(a[i - 1]) == lower(b[j - 2]) &&
                           lower(a[i - 2]) == lower(b[j - 1]);
      if (swapped) row[j] = std::min(row[j], beforeLast[j - 2] + 1);
    }
    std::swap(beforeLast, last);
    std::swap(last, row);
  }
  return last[b.size()];
}

}  // namespace

std::string listed(std::span<const std::string_view> names) {
  std::string list;
  for (std::size_t i = 0; i < names.size(); ++i) {
    if (i > 0) list += i + 1 == names.size() ? " or " : ", ";
    list += names[i];
  }
  return list;
}

std::string didYouMean(std::string_view word, std::span<const std::string_view> names) {
  constexpr std::size_t shortestBeginning = 3;
  std::string_view nearest;
  // Do not suggest codes of two letters: they are too similar.
  std::size_t least =
      word.size() < shortestBeginning ? 1 : std::max<std::size_t>(1, word.size() / 3) + 1;
  for (const std::string_view name : names) {
    const bool begun = word.size() >= shortestBeginning && name.starts_with(word);
    const std::size_t steps = begun ? 0 : distance(word, name);
    if (steps >= least) continue;
    least = steps;
    nearest = name;
  }
  return nearest.empty() ? "" : "; did you mean \"" + std::string(nearest) + "\"?";
}

}  // namespace quorix::tool
