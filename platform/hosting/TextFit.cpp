#include "platform/hosting/TextFit.h"

#include <algorithm>
#include <utility>

namespace quorix::hosting {
namespace {

using swiftui::ContentSizeCategory;

bool meet(const layout::Rect& one, const layout::Rect& other) {
  constexpr double touching = 0.5;  // points
  const double across = std::min(one.right(), other.right()) - std::max(one.left(), other.left());
  const double down = std::min(one.bottom(), other.bottom()) - std::max(one.top(), other.top());
  return across > touching && down > touching;
}

/// Whether a picture lies on a text.
bool isCovered(const render::Scene& scene) {
  for (auto item = scene.items.begin(); item != scene.items.end(); ++item) {
    const auto* text = std::get_if<render::TextItem>(&*item);
    const auto covers = [&](const render::Item& later) {
      const auto* image = std::get_if<render::ImageItem>(&later);
      return image && meet(text->frame, image->frame);
    };
    if (text && std::any_of(item, scene.items.end(), covers)) return true;
  }
  return false;
}

}  // namespace

void TextFit::setEnvironment(const swiftui::Environment& environment) {
  if (std::exchange(wanted_, environment) != environment) content_.setEnvironment(environment);
}

void TextFit::reset() { content_.setEnvironment(wanted_); }

const render::Scene& TextFit::scene(layout::Size area, const layout::EdgeInsets& safeArea,
                                    double tallest) {
  if (!std::exchange(fits_, true)) fit(area, safeArea, tallest);
  return content_.scene(area, safeArea);
}

/// Tries few sizes, since each shapes all texts anew: content that does not fit in the smallest
/// size stays in that; otherwise a binary search finds the largest size that fits.
void TextFit::fit(layout::Size area, const layout::EdgeInsets& safeArea, double tallest) {
  trying_ = true;
  swiftui::Environment environment = content_.environment();
  const auto use = [&](int size) {
    environment.textSize = static_cast<ContentSizeCategory>(size);
    content_.setEnvironment(environment);
  };
  const auto isWholeIn = [&](int size) {
    use(size);
    return content_.sizeThatFits({area.width, std::nullopt}).height <= tallest &&
           !isCovered(content_.scene(area, safeArea));
  };
  int whole = static_cast<int>(ContentSizeCategory::large);
  int cut = static_cast<int>(environment.textSize);
  if (cut > whole && !isWholeIn(cut) && isWholeIn(whole)) {
    while (cut - whole > 1) {
      const int between = (whole + cut) / 2;
      (isWholeIn(between) ? whole : cut) = between;
    }
    use(whole);
    content_.scene(area, safeArea);
  }
  trying_ = false;
}

}  // namespace quorix::hosting
