#include "QuorixWidgets/localization/FontRegistration.h"

#include <optional>
#include <string>

#include "QuorixWidgets/localization/FontError.h"
#include "QuorixWidgets/localization/ResourceBundle.h"
#include "platform/foundation/FatalError.h"
#include "platform/graphics/AssetCatalog.h"
#include "platform/graphics/FontManager.h"

namespace quorix {
namespace {

std::optional<FontError> registerFont(std::string_view name) {
  constexpr auto failure = FontError::failedToRegisterFont;
  const auto bundle = libraryBundle();
  if (!bundle) return failure;  // the catalogue would fall back to the host's main bundle
  const auto data = graphics::dataSet(bundle, "Fonts/" + std::string(name));
  const auto font = data ? graphics::GraphicsFont::fromData(*data) : std::nullopt;
  if (!font || !graphics::FontManager::shared().registerGraphicsFont(*font)) return failure;
  return std::nullopt;
}

}  // namespace

void registerFontsOrStop(std::initializer_list<std::string_view> names) {
  for (const std::string_view name : names) {
    if (const auto error = registerFont(name)) {
      foundation::fatalError("Failed to register font: " + describe(*error).description,
                             "QuorixWidgets/Fonts");
    }
  }
}

}  // namespace quorix
