#include "QuorixWidgets/localization/FontError.h"

#include <string>

namespace quorix {

foundation::Error describe(FontError error) {
  const std::string domain = "QuorixWidgets.FontError";
  const auto code = static_cast<std::int64_t>(error);
  return {
      domain, code,
      "The operation could not be completed. (" + domain + " error " + std::to_string(code) + ".)"};
}

}  // namespace quorix
