#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include "platform/foundation/Export.h"
#include "platform/hosting/EmbeddedPages.h"
#include "platform/hosting/Input.h"
#include "platform/hosting/Responder.h"
#include "platform/hosting/SheetPresenter.h"

namespace quorix::hosting {

class WindowSession;

/// A sheet over a window: opening and closing, settings, motion, input, focus and pages. A
/// toolkit's sheet derives from this; it stands above the window, paints, takes the focus, and
/// deletes itself after `vanish`. It handles every event that reaches it, so that what lies below
/// gets none. The first page of a process opens after the sheet's first frame, so that loading the
/// web engine does not delay the sheet; later pages open with that frame. Without an engine their
/// addresses open outside the app and the sheet closes. Main thread.
class QUORIX_EXPORT SheetSession : public Responder,
                                   private SheetPresenter::Client,
                                   private EmbeddedPage::Owner {
 public:
  ~SheetSession() override;

  void present(const swiftui::Presentation& presentation);
  /// The owner ended the presentation: the sheet falls.
  void retract() { presenter_.retract(); }
  /// The owner was deleted: closes without motion. The focus returns on a later turn.
  void abandon();
  /// Closes without motion, now.
  void close();
  bool isClosed() const { return closed_; }
  /// The sheet takes the window's input.
  bool isTopmost() const;

  SheetPresenter& presenter() { return presenter_; }
  const SheetPresenter& presenter() const { return presenter_; }

  using Responder::handle;
  bool handle(const KeyEvent& event) override;
  bool handle(const ScrollEvent& event) override;
  /// Whether `handle` takes this key, which must then not be a shortcut of the host.
  bool takes(Key key);
  bool takesTapAt(layout::Point point) override;

  Settings settings() const override { return settings_; }
  const std::vector<render::AccessibilityElement>& elements() override;
  bool isScrolledAway(const layout::Rect& frame) const override {
    return presenter_.isScrolledAway(frame);
  }
  void activate(int index) override { presenter_.activate(index); }
  bool focusElement(int index) override;
  std::optional<layout::Rect> focusFrame() const override;
  std::optional<layout::Rect> ringFrame() const override;

  /// The views of the pages on show, from the bottom up.
  std::vector<PageEngine*> pages() const;

 protected:
  /// Returns the focus to what had it before. False if that is gone.
  using FocusReturn = std::function<bool()>;

  SheetSession(WindowSession& window, text::TextEngine& engine);

  /// Device pixels for each point.
  virtual double scale() const = 0;
  /// Something moved or changed: paint a frame.
  virtual void needsFrame() = 0;

  bool isOpen() const { return presented_ && !closed_; }
  /// `scale` changed.
  void followScale();
  /// The window has this size now.
  void windowResized(layout::Size size);
  /// The frame clock ticked. Returns whether it goes on.
  bool advance(double seconds) { return presenter_.advance(seconds); }
  /// Before each frame: keeps a moving sheet moving. False if this closed it.
  bool followMotion();
  /// Before each frame, once the panel has its place: pages open, close and move with it.
  void followPages();
  /// A frame of the sheet is on the screen.
  void wasShown();
  /// Moves the focus on, inside the sheet.
  void walk(bool forward);
  void pageTookFocus();
  /// The keyboard moves the focus out of the pages.
  void leavePages(bool forward);
  /// The host moved the focus to something that this sheet lies over.
  void focusWentBelow();

 private:
  friend class WindowSession;

  /// Call `advance` in each frame until it returns false. Has no effect while that runs.
  virtual void startClock() = 0;
  virtual void stopClock() = 0;
  /// Shows the sheet above the window.
  virtual void comeUp() = 0;
  virtual FocusReturn focusReturn() = 0;
  virtual void takeFocus() = 0;
  virtual bool hasFocus() const = 0;
  /// Something inside the sheet has the focus, also a page.
  virtual bool holdsFocus() const = 0;
  /// Takes the focus from the sheet; the window then has no focused element.
  virtual void dropFocus() = 0;
  /// Hides the sheet for good, and deletes it on a later turn.
  virtual void vanish() = 0;
  /// The focused element changed: tell assistive technology, now or on a later turn.
  virtual void focusMoved(bool later) = 0;
  /// The sheet began or ceased to cover the window: tell assistive technology.
  virtual void coverChanged() {}

  // Pages, for a toolkit with a web engine.
  /// Whether a page can be expected to show. Cheap: loads no engine.
  virtual bool canShowPages() const { return false; }
  /// The web engine is loaded, so that opening a page takes little time.
  virtual bool opensPagesAtOnce() const { return false; }
  std::unique_ptr<PageEngine> openPage(const render::EmbedItem&, PageEngine::Client&) override {
    return nullptr;
  }
  /// Whether the renderer can cut a live page to rounded corners.
  virtual bool clipsPages() const { return false; }
  /// The page has this place in the window; `index` counts from the lowest.
  virtual void placePage(PageEngine&, const PagePlace&, int /*index*/) {}
  virtual void focusPage(PageEngine&, bool /*forward*/) {}
  /// Takes the focus from a page, if one has it.
  virtual void takeFocusFromPages() {}

  void settleContent() override { presenter_.settleContent(); }
  void endMotion() override { presenter_.settle(); }
  const swiftui::Presentation* presentation() override { return presenter_.presentation(); }
  SheetSession* makeSheet() override;
  void sheetNeedsDisplay() override { needsFrame(); }
  void sheetPresentationChanged() override { followSheet(); }
  void sheetDidClose() override { close(); }
  void pageHangs() override { presenter_.dismiss(SheetCloseReason::key); }
  void pageEnded() override;
  bool isRightToLeft() const override {
    return settings_.environment.direction == layout::LayoutDirection::rightToLeft;
  }

  bool isSecondTap(const PointerEvent& event) const;
  bool pointerPressed(const PointerEvent& event) override;
  bool pointerMoved(const PointerEvent& event) override;
  void pointerReleased(const PointerEvent& event) override;
  void pointerCancelled() override { presenter_.pointerCancelled(); }

  void followOpener();
  void followWindow();
  void track(const PointerEvent& event);
  bool leaveWindow();
  void leave();
  void giveUpPages();
  bool enterPages(bool forward);

  WindowSession* window_;             ///< null once closed
  std::weak_ptr<Responder*> opener_;  ///< is told of the sheet, which takes over its settings
  SheetPresenter presenter_;
  Settings settings_;
  layout::Size windowSize_;
  VelocityTracker velocity_;
  EmbeddedPages pages_{*this};
  FocusReturn focusReturn_;
  std::optional<unsigned> pagesRevision_;
  bool animated_ = true;
  bool shown_ = false;
  bool presented_ = false;
  bool gaveUpPages_ = false;  ///< of the latest presentation
  bool closed_ = false;
};

}  // namespace quorix::hosting
