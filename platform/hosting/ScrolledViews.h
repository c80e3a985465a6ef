#pragma once

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <optional>
#include <unordered_map>
#include <utility>
#include <vector>

#include "platform/layout/Geometry.h"
#include "platform/render/Scene.h"

namespace quorix::hosting {

/// Where a view, or the parent of views, is in its window.
struct ViewportPlace {
  layout::Rect visible;                 ///< the part of the window in sight, in its own coordinates
  std::optional<layout::Point> origin;  ///< in the window; absent while scaled or turned there
  bool operator==(const ViewportPlace&) const = default;
};

/// Finds the views of a window that came into sight, left it or moved in it, for a toolkit that
/// does not signal that an ancestor moved. Views are grouped by parent, and only those of a parent
/// that moved are compared, as plain rectangles. In each frame a few others are checked as well,
/// for moves that the toolkit does not signal at all. Main thread.
template <class Parent>
class ScrolledViews {
 public:
  class View {
   public:
    View() = default;
    View(const View&) = delete;
    View& operator=(const View&) = delete;
    virtual ~View() { leave(); }

   protected:
    void enter(ScrolledViews& views, const Parent& parent) {
      leave();
      Group& group = views.groups_[&parent];
      ++group.count;
      views_ = &views;
      index_ = views.entries_.size();
      views.entries_.push_back({this, &parent, &group, {}});
      placeMayHaveChanged();
    }

    void leave() {
      ScrolledViews* const views = std::exchange(views_, nullptr);
      if (!views) return;
      Entry& entry = views->entries_[index_];
      if (--entry.group->count == 0) views->groups_.erase(entry.parent);
      entry = views->entries_.back();
      entry.view->index_ = index_;
      views->entries_.pop_back();
    }

    bool isInWindow() const { return views_ != nullptr; }

    /// The view's own geometry changed.
    void moved() {
      if (!views_) return;
      views_->entries_[index_].bounds.reset();
      placeMayHaveChanged();
    }

   private:
    friend class ScrolledViews;
    virtual layout::Rect boundsInParent() const = 0;
    /// Before a frame: the view may have come into sight, left it, or moved in it.
    virtual void placeMayHaveChanged() = 0;

    ScrolledViews* views_ = nullptr;
    std::size_t index_ = 0;
  };

  ScrolledViews() = default;
  ScrolledViews(const ScrolledViews&) = delete;
  ScrolledViews& operator=(const ScrolledViews&) = delete;
  ~ScrolledViews() {
    for (const Entry& entry : entries_) entry.view->views_ = nullptr;
  }

  /// Call before each frame. `placeOf` returns the `ViewportPlace` of a parent; `scale` is the
  /// device pixels for each point.
  void frame(double scale, auto placeOf) {
    if (entries_.size() > checkedPerFrame) {
      bool anyMoved = false;
      for (auto& [parent, group] : groups_) anyMoved |= group.move(placeOf(*parent), scale);
      for (std::size_t i = 0; anyMoved && i < entries_.size(); ++i) {
        if (isConcerned(entries_[i])) entries_[i].view->placeMayHaveChanged();
      }
    }
    for (std::size_t i = 0; i < std::min(checkedPerFrame, entries_.size()); ++i) {
      if (next_ >= entries_.size()) next_ = 0;
      entries_[next_++].view->moved();
    }
  }

 private:
  /// How many views are checked in each frame, moved or not: all of an ordinary page.
  static constexpr std::size_t checkedPerFrame = 8;

  /// The views of one parent.
  struct Group {
    /// Returns whether the parent moved.
    bool move(const ViewportPlace& place, double scale) {
      moved = place != now;
      before = std::exchange(now, place);
      const auto whole = [&](double way) { return way * scale == std::round(way * scale); };
      keepsPixels = now.origin && before.origin && whole(now.origin->x - before.origin->x) &&
                    whole(now.origin->y - before.origin->y);
      return moved;
    }

    /// Whether the move may change the visible part of a view with these bounds, or its offset from
    /// whole pixels. A move by whole pixels changes neither if all of the view is visible before
    /// and after.
    bool concerns(const layout::Rect& bounds) const {
      const auto sees = [&](const ViewportPlace& place) {
        return !layout::intersection(place.visible, bounds).isEmpty();
      };
      if (!sees(now) && !sees(before)) return false;
      return !keepsPixels || !now.visible.contains(bounds) || !before.visible.contains(bounds);
    }

    ViewportPlace now, before;
    bool moved = false;
    bool keepsPixels = false;  ///< the latest move was by whole pixels
    int count = 0;
  };

  struct Entry {
    View* view;
    const Parent* parent;
    Group* group;
    std::optional<layout::Rect> bounds;  ///< in the parent; absent: ask the view
  };

  static bool isConcerned(Entry& entry) {
    if (!entry.group->moved) return false;
    if (!entry.bounds) entry.bounds = entry.view->boundsInParent();
    return entry.group->concerns(*entry.bounds);
  }

  std::unordered_map<const Parent*, Group> groups_;
  std::vector<Entry> entries_;
  std::size_t next_ = 0;  ///< the view that the next frame checks first
};

/// Which part of a view its picture shows, and when that is painted again. For a toolkit that keeps
/// pictures of the views in sight and moves them. Main thread.
class PicturePart {
 public:
  /// The view may have moved. Returns whether it came into sight, left it, or shows a part that is
  /// not painted.
  bool follow(const ViewportPlace& place, layout::Size size, double scale) {
    const layout::Rect seen = layout::intersection(place.visible, {{}, size});
    toPaint_ = render::partToPaint(size, seen, scale);
    const layout::Point corner = place.origin.value_or(layout::Point{});
    const layout::PixelGrid grid(scale);
    offset_ = {grid.round(corner.x) - corner.x, grid.round(corner.y) - corner.y};
    const bool wasInSight = std::exchange(isInSight_, !seen.isEmpty());
    const bool leftPart = isInSight_ && !painted_.contains(seen) && painted_ != toPaint_;
    stale_ = stale_ || leftPart;
    return isInSight_ != wasInSight || leftPart;
  }

  /// The view shows something else.
  void changed() { stale_ = true; }
  /// Whether to paint the part again. Call it when it can be painted.
  bool takeStale() {
    if (stale_) painted_ = toPaint_;
    return std::exchange(stale_, false);
  }

  bool isInSight() const { return isInSight_; }
  const layout::Rect& painted() const { return painted_; }
  /// From the view's corner to the nearest whole device pixel.
  layout::Point offset() const { return offset_; }

 private:
  layout::Rect toPaint_;
  layout::Rect painted_;
  layout::Point offset_;
  bool isInSight_ = false;
  bool stale_ = true;
};

}  // namespace quorix::hosting
