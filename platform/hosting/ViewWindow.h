#pragma once

#include <memory>
#include <vector>

#include "platform/hosting/SheetSession.h"
#include "platform/hosting/ViewSession.h"
#include "platform/hosting/WindowSession.h"

namespace quorix::hosting {

/// A window with one view that fills it, and the sheets above it. For a toolkit that paints all of
/// them on one area and passes on the area's input. Pictures and tests use it without a toolkit.
/// Main thread.
///
///     void show(ViewWindow& window, const std::function<void(const render::Scene&)>& paint) {
///       window.frame(1.0 / 60);
///       paint(window.view().host().scene({320, 640}));
///       for (SheetSession* sheet : window.sheets()) paint(sheet->presenter().scene());
///     }
class QUORIX_EXPORT ViewWindow : public WindowSession {
 public:
  /// Puts `root` on screen; it fills the window.
  ViewWindow(text::TextEngine& engine, Settings settings, swiftui::View root, layout::Size size);
  ~ViewWindow() override;

  ViewSession& view();
  /// The target of input: the top-most sheet, or the view without one.
  Responder& front();
  /// Sends a key to `front`. False if the key is not used, or if the focus leaves the window.
  bool handle(const KeyEvent& event);

  // Cheap while nothing changes: call them before each frame.
  void setSettings(const Settings& settings);
  void resize(layout::Size view, layout::Size window);
  /// Call before each frame: lays out the changes and advances the sheets by `seconds`. Returns
  /// whether one still moves.
  bool frame(double seconds);
  /// Runs the work that is queued for later turns, and ends all motion.
  void settle();

  /// The open sheets, from the bottom up. Paint their display lists in this order.
  std::vector<SheetSession*> sheets() const;

 private:
  class QUORIX_HIDDEN View;
  class QUORIX_HIDDEN Sheet;

  /// A change is visible: call `frame` and paint.
  virtual void needsFrame() {}
  // As in `ViewSession`.
  virtual void activated() {}
  virtual void sheetOpened() {}
  virtual void sheetClosed(SheetCloseReason) {}
  /// Without an engine, the background of the embed is shown in the page's place.
  virtual std::unique_ptr<PageEngine> openPage(const render::EmbedItem&, PageEngine::Client&);
  virtual bool showsPages() const { return false; }

  bool isVisible() const override { return true; }
  SheetSession& newSheet(const Responder* opener) override;

  text::TextEngine& engine_;
  Settings settings_;
  layout::Size viewSize_;
  layout::Size size_;
  std::unique_ptr<View> view_;
  std::vector<std::unique_ptr<Sheet>> made_;  ///< keeps closed ones for one more turn
};

}  // namespace quorix::hosting
