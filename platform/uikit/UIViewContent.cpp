#include "platform/uikit/UIViewContent.h"

#include <utility>

#include "platform/uikit/ViewLayout.h"
#include "platform/uikit/ViewScene.h"

namespace quorix::uikit {

UIViewContent::UIViewContent(std::shared_ptr<UIView> view) { show(std::move(view)); }

UIViewContent::~UIViewContent() {
  if (view_) view_->endShownBy(this);
}

void UIViewContent::show(std::shared_ptr<UIView> view) {
  if (view == view_) return;
  if (view_) view_->endShownBy(this);
  view_ = std::move(view);
  if (view_) {
    view_->setShownBy(this, [this] { tellChanged(); });
  }
  tellChanged();
}

layout::Size UIViewContent::sizeThatFits(layout::ProposedSize proposal, text::TextEngine& engine,
                                         double scale) {
  if (!view_) return {};
  const LayoutContext context{engine, {.scale = scale}};
  return ViewLayout(context).sizeThatFits(*view_, proposal);
}

render::Scene UIViewContent::scene(layout::Size size, const render::Display& display,
                                   text::TextEngine& engine) {
  if (!view_) return {};
  const LayoutContext context{engine, display};
  ViewLayout(context).layOut(*view_, {{}, size});
  return ViewScene(context).build(*view_);
}

}  // namespace quorix::uikit
