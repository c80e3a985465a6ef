#pragma once

#include <QImage>
#include <functional>

namespace quorix::examples {

/// Lets everything that is under way come to rest. Main thread.
void settle();

/// The frame that `grab` gives once a page of the web fills its lower half and no longer changes,
/// or what it gives when that takes too long.
QImage frameWithPage(const std::function<QImage()>& grab);

}  // namespace quorix::examples
