#include "QuorixWidgets/localization/QuorixFont.h"

#include "QuorixWidgets/localization/FontRegistration.h"

namespace quorix {

QuorixFont::QuorixFont(std::string_view name) : name_(name) { registerFontsOrStop({name}); }

const QuorixFont& QuorixFont::regular() {
  static const QuorixFont font("Saans-Regular");
  return font;
}

const QuorixFont& QuorixFont::medium() {
  static const QuorixFont font("Saans-Medium");
  return font;
}

}  // namespace quorix
