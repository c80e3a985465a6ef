#include "platform/hosting/SheetGeometry.h"

#include <algorithm>

namespace quorix::hosting {

double SheetGeometry::panelWidth() const { return std::min(window.width, widest); }

double SheetGeometry::largest() const {
  return std::max(0.0, window.height - safeArea.top - topGap - safeArea.bottom);
}

double SheetGeometry::contentHeight(const swiftui::PresentationDetents& detents) const {
  double height = largest();
  for (const swiftui::PresentationDetent& detent : detents) {
    const double available = std::max(0.0, window.height - safeArea.top);
    const double wanted = detent.points().value_or(available / 2);
    height = std::min(height, wanted);
  }
  return height;
}

layout::Rect SheetGeometry::panel(double revealed) const {
  const double width = panelWidth();
  return {{(window.width - width) / 2, window.height - revealed}, {width, revealed}};
}

}  // namespace quorix::hosting
