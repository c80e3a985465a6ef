#pragma once

#include <QPointer>
#include <functional>

#include "platform/foundation/Export.h"
#include "platform/swiftui/Presentation.h"
#include "qt/EnvironmentSource.h"

class QObject;

namespace quorix::qt {

class SheetSurface;

/// The sheet above a view, or above the content of another sheet: opens while one is presented and
/// goes with it. Main thread.
class QUORIX_EXPORT PresentedSheet {
 public:
  using Presentation = std::function<const swiftui::Presentation*()>;
  using MakeSheet = std::function<SheetSurface*()>;

  /// `presentation` is null while nothing is to be shown; `makeSheet` makes a sheet above `owner`
  /// that has its settings, or returns null where there is no window.
  PresentedSheet(QObject& owner, Presentation presentation, MakeSheet makeSheet);
  ~PresentedSheet() { abandon(); }
  PresentedSheet(const PresentedSheet&) = delete;
  PresentedSheet& operator=(const PresentedSheet&) = delete;

  /// What is presented changed: followed on a later turn, since the owner may be in the middle of
  /// something.
  void follow();
  void setSettings(const EnvironmentSource& settings);
  /// Closes the sheet without motion, now.
  void close();
  /// The same, but the focus goes back on a later turn.
  void abandon();

 private:
  void show();
  SheetSurface* sheet() const { return object_ ? sheet_ : nullptr; }

  QObject& owner_;
  Presentation presentation_;
  MakeSheet makeSheet_;
  QPointer<QObject> object_;
  SheetSurface* sheet_ = nullptr;  ///< as long as `object_`
  bool queued_ = false;
};

}  // namespace quorix::qt
