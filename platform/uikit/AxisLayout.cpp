#include "platform/uikit/AxisLayout.h"

#include <algorithm>
#include <utility>

namespace quorix::uikit {
namespace {

using Edge = AxisRule::Edge;
using Length = std::optional<double>;

struct Line {
  Length start;
  Length end;
  Length length;
  bool asked = false;   ///< for its natural length
  bool hollow = false;  ///< no rule and no content sets its length; it counts as 0

  Length& at(Edge edge) { return edge == Edge::start ? start : edge == Edge::end ? end : length; }
  bool isComplete() const { return start && end && length; }
  bool hasEdge() const { return start || end; }
  /// Computes the third value from the other two.
  void complete() {
    if (start && end && !length) length = *end - *start;
    if (start && length && !end) end = *start + *length;
    if (end && length && !start) start = *end - *length;
  }
};

class Solver {
 public:
  Solver(const std::vector<AxisItem>& items, const std::vector<AxisRule>& rules,
         const NaturalLength& natural, Length extent)
      : rules_(rules), natural_(natural) {
    lines_.reserve(items.size() + 1);
    lines_.push_back({0.0, extent, extent});
    for (const AxisItem& item : items) {
      lines_.push_back({item.start, {}, item.length});
      lines_.back().complete();
    }
  }

  void solve() {
    do {
      while (followRules()) {
      }
    } while (assumeNext());
  }

  const std::vector<Line>& lines() const { return lines_; }

 private:
  Line& line(int index) { return lines_[static_cast<std::size_t>(index)]; }

  /// Applies every rule once. Returns false when none sets a new value.
  bool followRules() {
    bool found = false;
    for (const AxisRule& rule : rules_) {
      if (rule.relation != LayoutRelation::equal) continue;
      if (rule.second == AxisRule::none) {
        found |= tell(rule.first, rule.firstEdge, rule.constant);
        continue;
      }
      const Length second = line(rule.second).at(rule.secondEdge);
      if (second) found |= tell(rule.first, rule.firstEdge, *second + rule.constant);
      const Length first = line(rule.first).at(rule.firstEdge);
      if (first) found |= tell(rule.second, rule.secondEdge, *first - rule.constant);
    }
    return found;
  }

  bool tell(int index, Edge edge, double value) {
    Length& known = line(index).at(edge);
    if (index == 0 || known) return false;
    known = value;
    line(index).complete();
    return true;
  }

  /// Sets one value that the rules leave open: the length of an item with an edge and a natural
  /// length, else that of an item with an edge, else a position. Returns false when none is open.
  bool assumeNext() {
    Line* hollow = nullptr;
    Line* loose = nullptr;
    for (std::size_t i = 1; i < lines_.size(); ++i) {
      Line& open = lines_[i];
      if (open.isComplete()) continue;
      if (open.hasEdge() && !std::exchange(open.asked, true)) {
        if (const Length natural = natural_(i - 1)) {
          open.length = limited(*natural, static_cast<int>(i));
          open.complete();
          return true;
        }
      }
      Line*& first = open.hasEdge() ? hollow : loose;
      if (!first) first = &open;
    }
    if (hollow) {
      hollow->length = 0;
      hollow->hollow = true;
      hollow->complete();
    } else if (loose) {
      loose->start = 0;
      loose->complete();
    }
    return hollow || loose;
  }

  /// `natural`, limited by the inequalities of item `index`.
  double limited(double natural, int index) {
    for (const AxisRule& rule : rules_) {
      if (rule.relation == LayoutRelation::equal) continue;
      const bool isFirst = rule.first == index;
      if (!isFirst && rule.second != index) continue;
      const bool atMost = (rule.relation == LayoutRelation::lessThanOrEqual) == isFirst;
      const int other = isFirst ? rule.second : rule.first;
      Length bound = 0.0;
      if (other != AxisRule::none)
        bound = line(other).at(isFirst ? rule.secondEdge : rule.firstEdge);
      if (!bound) continue;
      *bound += isFirst ? rule.constant : -rule.constant;
      natural =
          bounded(natural, line(index), isFirst ? rule.firstEdge : rule.secondEdge, atMost, *bound);
    }
    return std::max(natural, 0.0);
  }

  static double bounded(double natural, const Line& open, Edge edge, bool atMost, double bound) {
    double limit = bound;
    if (edge == Edge::end && open.start) {
      limit = bound - *open.start;
    } else if (edge == Edge::start && open.end) {
      limit = *open.end - bound;
      atMost = !atMost;
    } else if (edge != Edge::length) {
      return natural;
    }
    return atMost ? std::min(natural, limit) : std::max(natural, limit);
  }

  const std::vector<AxisRule>& rules_;
  const NaturalLength& natural_;
  std::vector<Line> lines_;
};

/// The container's length that `rule` needs; absent when it needs none.
Length reach(const AxisRule& rule, const std::vector<Line>& lines) {
  const bool isFirst = rule.first == 0;
  const Edge edge = isFirst ? rule.firstEdge : rule.secondEdge;
  if ((!isFirst && rule.second != 0) || edge == Edge::start) return std::nullopt;
  const LayoutRelation shrinks =
      isFirst ? LayoutRelation::lessThanOrEqual : LayoutRelation::greaterThanOrEqual;
  if (rule.relation == shrinks) return std::nullopt;
  if (rule.second == AxisRule::none) return rule.constant;
  Line item = lines[static_cast<std::size_t>(isFirst ? rule.second : rule.first)];
  const Length at = item.at(isFirst ? rule.secondEdge : rule.firstEdge);
  if (item.hollow || !at) return std::nullopt;
  return *at + (isFirst ? rule.constant : -rule.constant);
}

}  // namespace

std::vector<AxisSpan> placeAlong(const std::vector<AxisItem>& items,
                                 const std::vector<AxisRule>& rules, const NaturalLength& natural,
                                 double extent) {
  Solver solver(items, rules, natural, extent);
  solver.solve();
  std::vector<AxisSpan> spans;
  spans.reserve(items.size());
  for (std::size_t i = 1; i < solver.lines().size(); ++i) {
    const Line& line = solver.lines()[i];
    spans.push_back({*line.start, std::max(*line.length, 0.0)});
  }
  return spans;
}

std::optional<double> fittingExtent(const std::vector<AxisItem>& items,
                                    const std::vector<AxisRule>& rules,
                                    const NaturalLength& natural) {
  Solver solver(items, rules, natural, std::nullopt);
  solver.solve();
  Length extent;
  for (const AxisRule& rule : rules) {
    const Length reached = reach(rule, solver.lines());
    if (reached) extent = std::max(extent.value_or(0), *reached);
  }
  return extent;
}

}  // namespace quorix::uikit
