#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/foundation/Export.h"
#include "platform/layout/Geometry.h"
#include "platform/render/Scene.h"
#include "platform/uikit/CALayer.h"
#include "platform/uikit/LayoutContext.h"
#include "platform/uikit/NSLayoutConstraint.h"
#include "platform/uikit/UIColor.h"
#include "platform/uikit/UITapGestureRecognizer.h"

namespace quorix::uikit {

/// What assistive technology takes a view for, beyond what it shows.
enum class UIAccessibilityTraits : std::uint8_t { none, button, link, header };

/// A rectangle of the screen: an object that keeps what it was told and draws itself and its
/// subviews. Shared by reference, with a strong hold on its subviews and none on its superview;
/// made with std::make_shared. Main thread.
///
///     auto box = std::make_shared<UIView>();
///     box->setBackgroundColor(UIColor::fixed({255, 255, 255, 255}));
///     box->addSubview(label);
class QUORIX_EXPORT UIView : public std::enable_shared_from_this<UIView> {
 public:
  explicit UIView(layout::Rect frame = {});
  virtual ~UIView();
  UIView(const UIView&) = delete;
  UIView& operator=(const UIView&) = delete;

  // Views in views.

  std::shared_ptr<UIView> superview() const;
  /// The last one lies on top.
  const std::vector<std::shared_ptr<UIView>>& subviews() const { return subviews_; }
  /// Takes `view` from where it was and puts it on top. A view inside itself stops the process.
  void addSubview(std::shared_ptr<UIView> view);
  /// The same at `index` among the subviews, counted without `view`; one beyond the last is the
  /// top.
  void insertSubview(std::shared_ptr<UIView> view, std::size_t index);
  /// The constraints between this view and those that it leaves end.
  void removeFromSuperview();
  bool isDescendant(const UIView& view) const;

  // Place and size, in points.

  /// In the superview; what constraints and the host say replaces it when the view is shown. Of a
  /// view whose content has alignment insets it is the layout rectangle.
  const layout::Rect& frame() const { return frame_; }
  void setFrame(const layout::Rect& frame);
  layout::Rect bounds() const { return {{}, frame_.size}; }
  /// Whether the frame alone says where the view is, and constraints nothing.
  bool translatesAutoresizingMaskIntoConstraints() const { return translatesMask_; }
  void setTranslatesAutoresizingMaskIntoConstraints(bool translates);

  NSLayoutAnchor leadingAnchor() { return anchor(LayoutAttribute::leading); }
  NSLayoutAnchor trailingAnchor() { return anchor(LayoutAttribute::trailing); }
  NSLayoutAnchor leftAnchor() { return anchor(LayoutAttribute::left); }
  NSLayoutAnchor rightAnchor() { return anchor(LayoutAttribute::right); }
  NSLayoutAnchor topAnchor() { return anchor(LayoutAttribute::top); }
  NSLayoutAnchor bottomAnchor() { return anchor(LayoutAttribute::bottom); }
  NSLayoutAnchor widthAnchor() { return anchor(LayoutAttribute::width); }
  NSLayoutAnchor heightAnchor() { return anchor(LayoutAttribute::height); }
  /// In force, between this view and its subviews or among them.
  const std::vector<NSLayoutConstraint>& constraints() const { return constraints_; }

  // Looks.

  /// Null paints nothing.
  const UIColor::Ref& backgroundColor() const { return backgroundColor_; }
  void setBackgroundColor(UIColor::Ref color);
  bool isHidden() const { return hidden_; }
  void setHidden(bool hidden);
  /// Whether the view promises to cover what is behind it.
  bool isOpaque() const { return opaque_; }
  void setOpaque(bool opaque);
  CALayer& layer() { return layer_; }
  const CALayer& layer() const { return layer_; }

  // Touch.

  /// Off, neither this view nor anything in it is touched.
  bool isUserInteractionEnabled() const { return userInteractionEnabled_; }
  void setUserInteractionEnabled(bool enabled);
  void addGestureRecognizer(std::shared_ptr<UITapGestureRecognizer> recognizer);
  const std::vector<std::shared_ptr<UITapGestureRecognizer>>& gestureRecognizers() const {
    return gestureRecognizers_;
  }
  /// The top-most view under `point`, in this view's coordinates: the deepest one, later subviews
  /// before earlier ones. Null outside, in hidden views and in those that are not touched. Frames
  /// are those of the latest layout.
  std::shared_ptr<UIView> hitTest(layout::Point point);

  // Assistive technology.

  /// Absent, the content speaks for itself.
  const std::optional<std::string>& accessibilityLabel() const { return accessibilityLabel_; }
  void setAccessibilityLabel(std::optional<std::string> label);
  UIAccessibilityTraits accessibilityTraits() const { return accessibilityTraits_; }
  void setAccessibilityTraits(UIAccessibilityTraits traits);

  // For what lays out and shows views.

  /// The name of its type, for whoever prints views.
  virtual std::string_view className() const { return "UIView"; }

  /// The size that the content has of its own, broken to `width` where that is given; nothing when
  /// there is no content.
  virtual std::optional<layout::Size> intrinsicContentSize(std::optional<double> width,
                                                           const LayoutContext& context) const;
  /// Appends what this view shows below its subviews: here, its background. `frame` is exact, in
  /// the scene's coordinates, and so are the items' frames.
  virtual void draw(const layout::Rect& frame, const LayoutContext& context,
                    std::vector<render::Item>& items) const;
  /// What the content says to assistive technology, in `language` where it has no words of its own;
  /// nothing when there is nothing to say.
  virtual std::optional<render::AccessibilityElement> describe(std::string_view language) const;
  /// The place that a layout gave it: no change that anybody is told of.
  void layOutAt(const layout::Rect& frame) { frame_ = frame; }

  /// Tells whoever shows this view that its size or looks may have changed.
  void setNeedsLayout() const;
  /// `owner` shows this view from now on, in place of an earlier one, and is told of changes.
  void setShownBy(const void* owner, std::function<void()> changed);
  /// Does nothing when somebody else shows the view by now.
  void endShownBy(const void* owner);

 protected:
  /// The constructor's default of views that are not touched unless they are told otherwise.
  void startUntouched() { userInteractionEnabled_ = false; }

 private:
  friend struct NSLayoutConstraint;
  NSLayoutAnchor anchor(LayoutAttribute attribute) { return {weak_from_this(), attribute}; }
  void dropConstraintsInto(const UIView& leaving);

  UIView* superview_ = nullptr;  // cleared by the superview's destructor
  std::vector<std::shared_ptr<UIView>> subviews_;
  std::vector<NSLayoutConstraint> constraints_;
  std::vector<std::shared_ptr<UITapGestureRecognizer>> gestureRecognizers_;
  layout::Rect frame_;
  UIColor::Ref backgroundColor_;
  CALayer layer_{*this};
  std::optional<std::string> accessibilityLabel_;
  UIAccessibilityTraits accessibilityTraits_ = UIAccessibilityTraits::none;
  bool translatesMask_ = true;
  bool hidden_ = false;
  bool opaque_ = true;
  bool userInteractionEnabled_ = true;
  const void* shownBy_ = nullptr;
  std::function<void()> changed_;
};

}  // namespace quorix::uikit
