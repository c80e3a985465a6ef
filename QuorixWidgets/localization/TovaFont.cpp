#include "QuorixWidgets/localization/TovaFont.h"

#include "QuorixWidgets/localization/FontRegistration.h"

namespace quorix {

// A brand uses its two weights together, so the family comes as a whole whatever the handle.
TovaFont::TovaFont(std::string_view name) : name_(name) {
  registerFontsOrStop({"TovaSansLatin-Regular", "TovaSansLatin-SemiBold"});
}

const TovaFont& TovaFont::regular() {
  static const TovaFont font("TovaSansLatin-Regular");
  return font;
}

}  // namespace quorix
