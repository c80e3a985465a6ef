#pragma once

#include <memory>
#include <string_view>

#include "platform/uikit/UIView.h"

namespace quorix {

/// A view for the place of a page that was not loaded or has stopped: one sentence in the language
/// `locale` and below it a button for another try, with the recognizer `tap`. It starts below the
/// overlay's cross. Main thread.
std::shared_ptr<uikit::UIView> makePageNotice(std::string_view locale,
                                              std::shared_ptr<uikit::UITapGestureRecognizer> tap);

}  // namespace quorix
