#include "platform/combine/ObservableObject.h"

namespace quorix::combine {

Cancellable ObservableObject::onWillChange(std::function<void()> observer) {
  if (!observers_) observers_ = std::make_unique<Observers<>>();
  return observers_->add(std::move(observer));
}

void ObservableObject::sendWillChange() {
  if (observers_) observers_->call();
}

}  // namespace quorix::combine
