#include "qt/PresentedSheet.h"

#include <QMetaObject>
#include <utility>

#include "qt/SheetSurface.h"

namespace quorix::qt {

PresentedSheet::PresentedSheet(QObject& owner, Presentation presentation, MakeSheet makeSheet)
    : owner_(owner), presentation_(std::move(presentation)), makeSheet_(std::move(makeSheet)) {}

void PresentedSheet::follow() {
  if (std::exchange(queued_, true)) return;
  QMetaObject::invokeMethod(
      &owner_, [this] { show(); }, Qt::QueuedConnection);
}

void PresentedSheet::show() {
  queued_ = false;
  SheetSurface* open = sheet();
  if (open && open->isClosed()) open = nullptr;
  const swiftui::Presentation* presented = presentation_();
  if (!presented) {
    if (open) open->retract();
    return;
  }
  if (!open) {
    open = makeSheet_();
    if (!open) return;
    sheet_ = open;
    object_ = &open->object();
  }
  open->present(*presented);
}

void PresentedSheet::setSettings(const EnvironmentSource& settings) {
  if (SheetSurface* open = sheet()) open->setSettings(settings);
}

void PresentedSheet::close() {
  if (SheetSurface* open = sheet()) open->close();
}

void PresentedSheet::abandon() {
  if (SheetSurface* open = sheet()) open->abandon();
}

}  // namespace quorix::qt
