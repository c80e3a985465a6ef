#include <initializer_list>
#include <optional>
#include <string>

#include "QuorixWidgets/localization/FontError.h"
#include "QuorixWidgets/localization/QuorixFont.h"
#include "QuorixWidgets/localization/ResourceBundle.h"
#include "QuorixWidgets/localization/TovaFont.h"
#include "QuorixWidgets/localization/UIFont.h"
#include "platform/foundation/Error.h"
#include "platform/graphics/AssetCatalog.h"
#include "platform/graphics/FontManager.h"

namespace quorix {
namespace {

constexpr std::string_view fontSource = "QuorixWidgets/Fonts";

std::optional<FontError> registerFont(std::string_view name) {
  constexpr auto failure = FontError::failedToRegisterFont;
  const auto bundle = libraryBundle();
  if (!bundle) return failure;  // null would mean the host's main bundle
  const auto data = graphics::dataSet(bundle, "Fonts/" + std::string(name));
  const auto font = data ? graphics::GraphicsFont::fromData(*data) : std::nullopt;
  if (!font) return failure;
  // Has no effect if the host has registered a face with this name. Then the host's face is used.
  graphics::FontManager::shared().registerGraphicsFont(*font);
  return std::nullopt;
}

/// Registers the library's faces in order. Stops the process if the bundle lacks a face or the file
/// is not a font, because then the library was built wrong.
void registerFontsOrStop(std::initializer_list<std::string_view> names) {
  for (const std::string_view name : names) {
    if (const auto error = registerFont(name)) {
      foundation::fatalError("Failed to register font: " + describe(*error).description,
                             fontSource);
    }
  }
}

}  // namespace

foundation::Error describe(FontError error) {
  const std::string domain = "QuorixWidgets.FontError";
  const auto code = static_cast<std::int64_t>(error);
  return {
      domain, code,
      "The operation could not be completed. (" + domain + " error " + std::to_string(code) + ".)"};
}

QuorixFont::QuorixFont(std::string_view name) : name_(name) { registerFontsOrStop({name}); }

const QuorixFont& QuorixFont::regular() {
  static const QuorixFont font("Saans-Regular");
  return font;
}

const QuorixFont& QuorixFont::medium() {
  static const QuorixFont font("Saans-Medium");
  return font;
}

// The brand uses its two weights together, so both are registered.
TovaFont::TovaFont(std::string_view name) : name_(name) {
  registerFontsOrStop({"TovaSansLatin-Regular", "TovaSansLatin-SemiBold"});
}

const TovaFont& TovaFont::regular() {
  static const TovaFont font("TovaSansLatin-Regular");
  return font;
}

UIFont::Ref UIFont::require(const std::string& name, double size) {
  auto font = named(name, size);
  if (!font) foundation::fatalError("No font face named '" + name + "'", fontSource);
  return font;
}

}  // namespace quorix
