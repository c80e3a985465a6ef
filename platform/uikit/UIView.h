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
#include "platform/text/TextEngine.h"
#include "platform/uikit/NSLayoutConstraint.h"
#include "platform/uikit/UIColor.h"

namespace quorix::uikit {

/// Calls a target when the view that it was added to is tapped. Holds the target weakly and does
/// not call it once it is gone. Main thread.
///
///     #include <platform/uikit/UIView.h>
///     auto box = std::make_shared<UIView>();
///     auto open = std::make_shared<bool>(false);
///     box->addGestureRecognizer(std::make_shared<UITapGestureRecognizer>(
///         open, [](bool& open, UITapGestureRecognizer&) { open = true; }));
class UITapGestureRecognizer {
 public:
  template <class Target, class Action>
  UITapGestureRecognizer(const std::shared_ptr<Target>& target, Action action)
      : recognized_([weak = std::weak_ptr<Target>(target),
                     action = std::move(action)](UITapGestureRecognizer& sender) {
          if (const auto strong = weak.lock()) action(*strong, sender);
        }) {}

  /// Call at a tap.
  void recognize() {
    const auto kept = recognized_;  // the action may delete this recognizer
    kept(*this);
  }

 private:
  std::function<void(UITapGestureRecognizer&)> recognized_;
};

class UIView;
class UIViewContent;

/// The border of a view. Part of the view.
class QUORIX_EXPORT CALayer {
 public:
  explicit CALayer(UIView& view) : view_(view) {}
  CALayer(const CALayer&) = delete;
  CALayer& operator=(const CALayer&) = delete;

  /// Points, inside the view's edges and above its subviews; 0 for none.
  double borderWidth() const { return borderWidth_; }
  void setBorderWidth(double width);
  /// Null draws black.
  const UIColor::Ref& borderColor() const { return borderColor_; }
  void setBorderColor(UIColor::Ref color);

 private:
  UIView& view_;
  double borderWidth_ = 0;
  UIColor::Ref borderColor_;
};

/// The inputs of layout and drawing other than the views.
struct LayoutContext {
  text::TextEngine& engine;
  render::Display display;
};

/// The role for assistive technology; `none` keeps the content's own.
enum class UIAccessibilityTraits : std::uint8_t { none, button, link, header };

/// A rectangle of the screen: a retained object that draws itself and its subviews. Owns its
/// subviews and does not own its superview. Make it with std::make_shared. Main thread.
///
///     auto box = std::make_shared<UIView>();
///     box->setBackgroundColor(UIColor::fixed({255, 255, 255, 255}));
///     box->addSubview(std::make_shared<UIView>(layout::Rect{{8, 8}, {40, 40}}));
class QUORIX_EXPORT UIView : public std::enable_shared_from_this<UIView> {
 public:
  explicit UIView(layout::Rect frame = {});
  virtual ~UIView();
  UIView(const UIView&) = delete;
  UIView& operator=(const UIView&) = delete;

  // Hierarchy.

  std::shared_ptr<UIView> superview() const;
  /// From the bottom to the top.
  const std::vector<std::shared_ptr<UIView>>& subviews() const { return subviews_; }
  /// Removes `view` from its superview and adds it on top. Adding a view to itself or to one of its
  /// subviews stops the process.
  void addSubview(std::shared_ptr<UIView> view);
  /// Inserts `view` at `index` among the other subviews; an index beyond the last is the top.
  void insertSubview(std::shared_ptr<UIView> view, std::size_t index);
  /// Also removes the constraints between this view and the superview or its other subviews.
  void removeFromSuperview();
  bool isDescendant(const UIView& view) const;

  // Place and size, in points.

  /// The frame in the superview. A layout replaces it. If the view's content has alignment insets,
  /// it is the layout rectangle.
  const layout::Rect& frame() const { return frame_; }
  void setFrame(const layout::Rect& frame);
  layout::Rect bounds() const { return {{}, frame_.size}; }
  /// Whether the frame places the view. If false, constraints do.
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
  /// The active constraints between this view and its subviews, or among the subviews.
  const std::vector<ActiveLayoutConstraint>& constraints() const { return constraints_; }

  // Appearance.

  /// Null for none.
  const UIColor::Ref& backgroundColor() const { return backgroundColor_; }
  void setBackgroundColor(UIColor::Ref color);
  bool isHidden() const { return hidden_; }
  void setHidden(bool hidden);
  /// Whether the view covers its frame completely.
  bool isOpaque() const { return opaque_; }
  void setOpaque(bool opaque);
  CALayer& layer() { return ownExtras().layer; }
  const CALayer& layer() const { return extras().layer; }

  // Touch.

  /// When false, neither this view nor its subviews take touches.
  bool isUserInteractionEnabled() const { return userInteractionEnabled_; }
  void setUserInteractionEnabled(bool enabled);
  void addGestureRecognizer(std::shared_ptr<UITapGestureRecognizer> recognizer);
  const std::vector<std::shared_ptr<UITapGestureRecognizer>>& gestureRecognizers() const {
    return extras().gestureRecognizers;
  }

  // Assistive technology.

  /// Absent: the content's label.
  const std::optional<std::string>& accessibilityLabel() const {
    return extras().accessibilityLabel;
  }
  void setAccessibilityLabel(std::optional<std::string> label);
  UIAccessibilityTraits accessibilityTraits() const { return accessibilityTraits_; }
  void setAccessibilityTraits(UIAccessibilityTraits traits);

  // For layout and display.

  /// The name of its type, for printed views.
  virtual std::string_view className() const { return "UIView"; }

  /// The content's natural size; with `width`, that of a text broken to it. Absent without content.
  virtual std::optional<layout::Size> intrinsicContentSize(std::optional<double> width,
                                                           const LayoutContext& context) const;
  /// Appends the items of this view, which are below its subviews: here, the background. `frame`
  /// and the items' frames are exact (not on pixels), in the display list's coordinates.
  virtual void draw(const layout::Rect& frame, const LayoutContext& context,
                    std::vector<render::Item>& items) const;
  /// The content's element for assistive technology, or absent. A label that the content does not
  /// set itself is in `language`.
  virtual std::optional<render::AccessibilityElement> describe(std::string_view language) const;
  /// Sets the frame in a layout, without a change notice.
  void layOutAt(const layout::Rect& frame) { frame_ = frame; }

  /// Notifies the content set by `setShownBy` that the size or appearance may have changed.
  void setNeedsLayout() const;
  /// Makes `content` the one that shows this view, in place of an earlier one.
  void setShownBy(UIViewContent* content) { shownBy_ = content; }
  /// No effect if another content shows the view now.
  void endShownBy(const UIViewContent* content) {
    if (shownBy_ == content) shownBy_ = nullptr;
  }

 protected:
  /// For constructors: makes the view ignore touches by default.
  void startUntouched() { userInteractionEnabled_ = false; }

 private:
  friend struct NSLayoutConstraint;

  /// Properties that few views set.
  struct Extras {
    explicit Extras(UIView& view) : layer(view) {}
    CALayer layer;
    std::vector<std::shared_ptr<UITapGestureRecognizer>> gestureRecognizers;
    std::optional<std::string> accessibilityLabel;
  };
  const Extras& extras() const;
  /// The properties for a change; creates them on the first call.
  Extras& ownExtras();

  NSLayoutAnchor anchor(LayoutAttribute attribute) { return {weak_from_this(), attribute}; }
  void dropConstraintsInto(const UIView& leaving);

  UIView* superview_ = nullptr;  // cleared by the superview's destructor
  std::vector<std::shared_ptr<UIView>> subviews_;
  std::vector<ActiveLayoutConstraint> constraints_;
  std::unique_ptr<Extras> extras_;  // null until one is set
  layout::Rect frame_;
  UIColor::Ref backgroundColor_;
  UIViewContent* shownBy_ = nullptr;
  UIAccessibilityTraits accessibilityTraits_ = UIAccessibilityTraits::none;
  bool translatesMask_ = true;
  bool hidden_ = false;
  bool opaque_ = true;
  bool userInteractionEnabled_ = true;
};

}  // namespace quorix::uikit
