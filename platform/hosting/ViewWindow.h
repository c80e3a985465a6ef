#pragma once

#include <memory>
#include <vector>

#include "platform/hosting/SheetSession.h"
#include "platform/hosting/ViewSession.h"
#include "platform/hosting/WindowSession.h"

namespace quorix::hosting {

/// A window that one view fills, with its sheets over it. For a toolkit that paints all of them on
/// one area and passes the area's input on; pictures and tests use it without a toolkit. Main
/// thread.
///
///     void show(ViewWindow& window, const std::function<void(const render::Scene&)>& paint) {
///       window.frame(1.0 / 60);
///       paint(window.view().host().scene({320, 640}));
///       for (SheetSession* sheet : window.sheets()) paint(sheet->presenter().scene());
///     }
class QUORIX_EXPORT ViewWindow : public WindowSession {
 public:
  /// `root` comes on screen and fills the window.
  ViewWindow(text::TextEngine& engine, Settings settings, swiftui::View root, layout::Size size);
  ~ViewWindow() override;

  ViewSession& view();
  /// What takes the input: the top-most sheet, or else the view.
  Responder& front();
  /// Passes a key to it. False when the focus leaves the window, or nothing takes the key.
  bool handle(const KeyEvent& event);

  // Cheap while nothing changes: call them before each frame.
  void setSettings(const Settings& settings);
  void resize(layout::Size view, layout::Size window);
  /// Before each frame: lays out what changed, and moves the sheets on by `seconds`. Returns
  /// whether one is still moving.
  bool frame(double seconds);
  /// Runs what waits for a later turn, and ends all motion.
  void settle();

  /// The open sheets, from the bottom up: lay each display list over the one before.
  std::vector<SheetSession*> sheets() const;

 private:
  class QUORIX_HIDDEN View;
  class QUORIX_HIDDEN Sheet;

  /// Something changed: call `frame` and paint.
  virtual void needsFrame() {}
  // As in `ViewSession`.
  virtual void activated() {}
  virtual void sheetOpened() {}
  virtual void sheetClosed(SheetCloseReason) {}
  /// Without an engine, a page's room shows its background.
  virtual std::unique_ptr<PageEngine> openPage(const render::EmbedItem&, PageEngine::Client&);
  virtual bool showsPages() const { return false; }

  bool isVisible() const override { return true; }
  SheetSession& newSheet(const Responder* opener) override;

  text::TextEngine& engine_;
  Settings settings_;
  layout::Size viewSize_;
  layout::Size size_;
  std::unique_ptr<View> view_;
  std::vector<std::unique_ptr<Sheet>> made_;  ///< the closed ones for one more turn
};

}  // namespace quorix::hosting
