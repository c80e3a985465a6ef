#include "platform/foundation/BundlePath.h"

namespace quorix::foundation {

bool isInnerPath(std::string_view path) {
  if (path.find_first_of(std::string_view("\\:\0", 3)) != path.npos) return false;
  for (;;) {
    const auto slash = path.find('/');
    const auto part = path.substr(0, slash);
    if (part.empty() || part == "." || part == "..") return false;
    if (slash == path.npos) return true;
    path.remove_prefix(slash + 1);
  }
}

}  // namespace quorix::foundation
