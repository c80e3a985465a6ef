#include "platform/hosting/Responder.h"

#include <utility>

#include "platform/foundation/MainQueue.h"
#include "platform/hosting/SheetSession.h"

namespace quorix::hosting {

Responder::~Responder() { abandonSheet(); }

std::weak_ptr<Responder*> Responder::weak() {
  if (!alive_) alive_ = std::make_shared<Responder*>(this);
  return alive_;
}

void Responder::later(std::function<void()> work) {
  foundation::MainQueue::async([self = weak(), work = std::move(work)] {
    if (!self.expired()) work();
  });
}

// Pointer.

bool Responder::handle(const PointerEvent& event) {
  using Phase = PointerEvent::Phase;
  if (event.phase == Phase::pressed) {
    // Only the first finger counts. A mouse press always starts over: its release may have been
    // lost.
    if (pointer_ && event.pointer != PointerEvent::mouse) return true;
    pointer_ = event.pointer;
    if (pointerPressed(event)) return true;
    pointer_.reset();
    return false;
  }
  if (pointer_ != event.pointer) return false;
  if (event.phase == Phase::moved) return pointerMoved(event);
  pointer_.reset();
  releasedAt_ = event.time;
  pointerReleased(event);
  return true;
}

void Responder::pointerLost() {
  if (std::exchange(pointer_, std::nullopt)) pointerCancelled();
}

// The sheet above.

SheetSession* Responder::sheet() const {
  const auto open = sheet_.lock();
  return open ? static_cast<SheetSession*>(*open) : nullptr;
}

void Responder::followSheet() {
  if (std::exchange(sheetQueued_, true)) return;
  later([this] {
    if (sheetQueued_) showSheet();
  });
}

void Responder::showSheet() {
  sheetQueued_ = false;
  SheetSession* open = sheet();
  if (open && open->isClosed()) open = nullptr;
  const swiftui::Presentation* presented = presentation();
  if (!presented) {
    if (open) open->retract();
    return;
  }
  const bool rises = !open;
  if (rises) {
    open = makeSheet();
    if (!open) return;
    sheet_ = open->weak();
  }
  const auto self = weak();
  open->present(*presented);
  if (!rises || self.expired()) return;
  // A sheet that measures its content now requests another height. Apply it before the first frame.
  settleContent();
  if (sheetQueued_) showSheet();
}

bool Responder::settle() {
  settleContent();
  endMotion();
  const bool follows = sheetQueued_;
  if (follows) showSheet();
  SheetSession* open = sheet();
  const bool above = open && !open->isClosed() && open->settle();
  return follows || above;
}

void Responder::closeSheet() {
  if (SheetSession* open = sheet()) open->close();
}

void Responder::abandonSheet() {
  if (SheetSession* open = sheet()) open->abandon();
}

}  // namespace quorix::hosting
