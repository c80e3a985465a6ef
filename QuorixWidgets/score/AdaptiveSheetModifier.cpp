#include "QuorixWidgets/score/AdaptiveSheetModifier.h"

namespace quorix {

using swiftui::PresentationDetent;
using swiftui::PresentationDetents;

swiftui::View AdaptiveSheetModifier::body(const swiftui::View& content) const {
  const auto detents = presentationDetents.binding();
  const auto follow = [detents](layout::Size size) {
    detents.set(PresentationDetents{PresentationDetent::height(size.height)});
  };
  return content.sheet(isPresented,
                       sheetContent.presentationDetents(detents.get()).onGeometryChange(follow));
}

}  // namespace quorix
