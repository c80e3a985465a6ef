#pragma once

namespace quorix::examples {

/// Lets everything that is under way come to rest. Main thread.
void settle();

}  // namespace quorix::examples
