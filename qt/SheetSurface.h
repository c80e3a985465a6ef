#pragma once

#include <QPointF>
#include <optional>

#include "platform/foundation/Export.h"
#include "platform/hosting/SheetPresenter.h"
#include "platform/hosting/VelocityTracker.h"
#include "qt/EmbeddedPages.h"
#include "qt/EnvironmentSource.h"
#include "qt/FingerTracker.h"
#include "qt/FrameClock.h"
#include "qt/PresentedSheet.h"

class QEvent;
class QKeyEvent;
class QMouseEvent;
class QObject;

namespace quorix::qt {

/// What a sheet over a window does in every toolkit: coming and going, settings, motion and input.
/// A toolkit's sheet derives from this and gives it a place, paint and the focus; it deletes itself
/// when it has closed. Pages in it open once its first frame has been shown, so that loading the
/// web engine does not keep the sheet from coming; where there is no engine, their addresses are
/// opened outside the app and the sheet stays away. A sheet that its content presents stands above
/// it, in the same way. Main thread.
class QUORIX_EXPORT SheetSurface : private hosting::SheetPresenter::Client,
                                   private EmbeddedPage::Owner {
 public:
  SheetSurface(const SheetSurface&) = delete;
  SheetSurface& operator=(const SheetSurface&) = delete;

  QObject& object() const { return self_; }

  void setSettings(const EnvironmentSource& settings);
  void present(const swiftui::Presentation& presentation);
  /// The owner took the sheet back.
  void retract() { presenter_.retract(); }
  /// The owner is gone: closes without motion.
  void abandon();
  /// Closes without motion, now.
  void close();
  bool isClosed() const { return closed_; }

 protected:
  /// `self` is the derived object, `webComponent` the name of its toolkit's.
  SheetSurface(QObject& self, const QString& webComponent);
  ~SheetSurface() override;

  hosting::SheetPresenter& presenter() { return presenter_; }
  const hosting::SheetPresenter& presenter() const { return presenter_; }
  bool isPresented() const { return presented_; }

  /// Takes an event of the pointer or the keyboard: false when it is another. What happens here
  /// stays here: nothing below the sheet hears of it.
  bool handle(QEvent& event);
  void pointerLost();
  bool takesTapAt(QPointF point);
  /// Assistive technology leads the focus to an element. False when that does not act.
  bool focusElement(int index);
  /// Moves the focus on, inside the sheet.
  void walk(bool forward);

  /// For each frame: sees to it that what moves goes on moving. May close the sheet.
  void followMotion();
  /// For each frame, once the panel stands: pages open, close and move with it.
  void followPages();
  /// A frame of the sheet is on the screen.
  void wasShown();
  /// The views of the pages on show, from the bottom up.
  std::vector<QObject*> pageViews() const { return pages_.views(); }
  void pageTookFocus();
  /// The keyboard leads out of the pages.
  void leftPages(bool forward);
  /// The scale changed.
  void followScale() { setSettings(settings_); }

 private:
  /// Device pixels for each point.
  virtual double scale() const = 0;
  /// Something moved or changed: a frame is wanted.
  virtual void needsFrame() = 0;
  /// Comes up and takes the focus.
  virtual void takeFocusOver() = 0;
  virtual void giveFocusBack() = 0;
  virtual void vanish() = 0;
  /// A new sheet above this one; null without a window.
  virtual SheetSurface* makeSheetAbove() = 0;

  /// Page `view` stands at `frame` in the window; `index` counts from the lowest.
  virtual void placePage(QObject& view, const layout::Rect& frame, int index) = 0;
  virtual void focusPage(QObject& view, bool forward) = 0;
  /// Takes the focus from a page, if one has it.
  virtual void takeFocusFromPages() = 0;

  void sheetNeedsDisplay() override { needsFrame(); }
  void sheetPresentationChanged() override { above_.follow(); }
  void sheetDidClose() override { close(); }
  void pageHangs() override { presenter_.dismiss(); }
  void pageEnded() override;
  void leave();
  void giveUpPages();
  bool enterPages(bool forward);

  bool handleMouse(const QMouseEvent& event);
  bool handleKey(QKeyEvent& event);
  void handleTouch(const QTouchEvent& event);
  // `at` is the event's time in milliseconds.
  void pressed(QPointF point, quint64 at);
  void moved(QPointF point, quint64 at);
  void released(QPointF point, quint64 at);

  QObject& self_;
  hosting::SheetPresenter presenter_;
  EnvironmentSource settings_;
  FingerTracker finger_;
  hosting::VelocityTracker velocity_;
  FrameClock clock_;
  EmbeddedPages pages_;
  PresentedSheet above_;
  std::optional<unsigned> pagesRevision_;
  bool shown_ = false;
  bool presented_ = false;
  bool gaveUpPages_ = false;  ///< of what is presented
  bool closed_ = false;
};

}  // namespace quorix::qt
