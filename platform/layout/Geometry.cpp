#include "platform/layout/Geometry.h"

namespace quorix::layout {

double alignedOffset(HorizontalAlignment alignment, double outer, double inner) {
  switch (alignment) {
    case HorizontalAlignment::leading:
      return 0;
    case HorizontalAlignment::center:
      return (outer - inner) / 2;
    case HorizontalAlignment::trailing:
      return outer - inner;
  }
  return 0;
}

double alignedOffset(VerticalAlignment alignment, double outer, double inner) {
  switch (alignment) {
    case VerticalAlignment::top:
      return 0;
    case VerticalAlignment::center:
      return (outer - inner) / 2;
    case VerticalAlignment::bottom:
      return outer - inner;
  }
  return 0;
}

Point alignedOffset(Alignment alignment, Size outer, Size inner) {
  return {alignedOffset(alignment.horizontal, outer.width, inner.width),
          alignedOffset(alignment.vertical, outer.height, inner.height)};
}

}  // namespace quorix::layout
