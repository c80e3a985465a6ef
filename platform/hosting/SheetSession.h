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

class ScenePicture;
class SheetPictures;
class WindowSession;

/// A sheet over a window: opening and closing, settings, motion, input, focus and pages. A
/// toolkit's sheet derives from this, places it above the window, paints it, gives it the focus,
/// and deletes itself after `vanish`. The sheet consumes every event that reaches it. The first
/// page of a process opens after the sheet's first frame, so that loading the web engine does not
/// delay the sheet; later pages open with the first frame. Without an engine, their addresses open
/// outside the app and the sheet closes. Main thread.
class QUORIX_EXPORT SheetSession : public Responder,
                                   private SheetPresenter::Client,
                                   private EmbeddedPage::Owner {
 public:
  ~SheetSession() override;

  void present(const swiftui::Presentation& presentation);
  /// The owner no longer presents the sheet: moves it down, then closes it.
  void retract() { presenter_.retract(); }
  /// Closes the sheet without motion because its owner is gone. The focus returns on a later turn.
  void abandon();
  /// Closes the sheet immediately, without motion.
  void close();
  bool isClosed() const { return closed_; }
  /// Whether the sheet takes the window's input.
  bool isTopmost() const;

  SheetPresenter& presenter() { return presenter_; }
  const SheetPresenter& presenter() const { return presenter_; }

  using Responder::handle;
  bool handle(const KeyEvent& event) override;
  bool handle(const ScrollEvent& event) override;
  /// Whether `handle` uses this key. Then no shortcut of the host may get it.
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

  /// The visible pages, from the bottom up.
  std::vector<PageEngine*> pages() const;

 protected:
  /// Returns the focus to its previous owner. False if that is gone.
  using FocusReturn = std::function<bool()>;

  SheetSession(WindowSession& window, text::TextEngine& engine);

  /// Device pixels for each point.
  virtual double scale() const = 0;
  /// A change is visible: paint a frame.
  virtual void needsFrame() = 0;

  bool isOpen() const { return presented_ && !closed_; }
  /// `scale` changed.
  void followScale();
  /// The window was resized.
  void windowResized(layout::Size size);
  /// The frame clock ticked. Returns whether it must continue.
  bool advance(double seconds) { return presenter_.advance(seconds); }
  /// Call before each frame: brings motion, pictures and pages up to date. False if the sheet has
  /// closed. A toolkit that paints the whole display list calls the next two instead.
  bool followFrame();
  /// Continues the motion. False if the sheet has closed.
  bool followMotion();
  /// Call after the panel has moved: opens, closes and moves pages.
  void followPages();
  const SheetPictures& pictures() const { return *pictures_; }
  /// The toolkit lost the pictures.
  void paintAgain();
  /// Deletes pictures and pages. Call it in the destructor of a sheet whose children they are: they
  /// tell it when they go.
  void dropChildren();
  /// Call when a frame of the sheet is on the screen.
  void wasShown();
  /// Moves the focus inside the sheet.
  void walk(bool forward);
  void pageTookFocus();
  /// The keyboard moved the focus out of the pages.
  void leavePages(bool forward);
  /// The host moved the focus to something below this sheet.
  void focusWentBelow();

 private:
  friend class WindowSession;

  /// Calls `advance` in each frame until it returns false. Has no effect if the clock runs.
  virtual void startClock() = 0;
  virtual void stopClock() = 0;
  /// Shows the sheet above the window.
  virtual void comeUp() = 0;
  virtual FocusReturn focusReturn() = 0;
  virtual void takeFocus() = 0;
  virtual bool hasFocus() const = 0;
  /// Whether the sheet or a page in it has the focus.
  virtual bool holdsFocus() const = 0;
  /// Removes the focus from every element of the window.
  virtual void dropFocus() = 0;
  /// Hides the sheet for good, and deletes it on a later turn.
  virtual void vanish() = 0;
  /// Notifies assistive technology of the newly focused element, now or on a later turn.
  virtual void focusMoved(bool later) = 0;
  /// Notifies assistive technology that the sheet covers the window now, or no longer.
  virtual void coverChanged() {}
  /// Notifies assistive technology of a new display list. Called by `followFrame`.
  virtual void sceneChanged() {}
  /// Makes a picture above those before it; the pages are between them. `index` counts from the
  /// panel. Override it to call `followFrame`.
  virtual std::unique_ptr<ScenePicture> newPicture(int index);

  // Pages, for a toolkit with a web engine.
  /// Whether a page can probably be shown. Fast: does not load the engine.
  virtual bool canShowPages() const { return false; }
  /// Whether the web engine is loaded, so that a page opens without delay.
  virtual bool opensPagesAtOnce() const { return false; }
  std::unique_ptr<PageEngine> openPage(const render::EmbedItem&, PageEngine::Client&) override {
    return nullptr;
  }
  /// Whether the renderer can clip a live page to rounded corners.
  virtual bool clipsPages() const { return false; }
  /// Moves the page to a place in the window; `index` counts from the lowest page.
  virtual void placePage(PageEngine&, const PagePlace&, int /*index*/) {}
  virtual void focusPage(PageEngine&, bool /*forward*/) {}
  /// Takes the focus from a page if it has it.
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
  std::weak_ptr<Responder*> opener_;  ///< receives the notices; its settings apply
  SheetPresenter presenter_;
  Settings settings_;
  layout::Size windowSize_;
  VelocityTracker velocity_;
  EmbeddedPages pages_{*this};
  std::unique_ptr<SheetPictures> pictures_;
  FocusReturn focusReturn_;
  std::optional<unsigned> pagesRevision_;
  double coveredTop_ = 0;  ///< points at the panel's top that a page covers
  bool animated_ = true;
  bool shown_ = false;
  bool presented_ = false;
  bool gaveUpPages_ = false;  ///< for the latest presentation
  bool closed_ = false;
};

}  // namespace quorix::hosting
