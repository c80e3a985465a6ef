#pragma once

#include <memory>

#include "platform/foundation/Export.h"
#include "platform/render/HostedContent.h"
#include "platform/uikit/UIView.h"

namespace quorix::uikit {

/// Shows a view, with all that is in it, as a scene. One content at a time shows a view: the latest
/// one that took it. Main thread.
class QUORIX_EXPORT UIViewContent : public render::HostedContent {
 public:
  explicit UIViewContent(std::shared_ptr<UIView> view);
  ~UIViewContent() override;
  UIViewContent(const UIViewContent&) = delete;
  UIViewContent& operator=(const UIViewContent&) = delete;

  const std::shared_ptr<UIView>& view() const { return view_; }
  /// Shows another view.
  void show(std::shared_ptr<UIView> view);

  /// What constraints and content ask for, within the proposal; what they leave open is taken
  /// whole.
  layout::Size sizeThatFits(layout::ProposedSize proposal, text::TextEngine& engine,
                            double scale) override;
  render::Scene scene(layout::Size size, const render::Display& display,
                      text::TextEngine& engine) override;

 private:
  std::shared_ptr<UIView> view_;
};

}  // namespace quorix::uikit
