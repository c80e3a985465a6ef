#include "QuorixWidgets/localization/LocalizedString.h"

#include <optional>

#include "QuorixWidgets/localization/ResourceBundle.h"
#include "platform/foundation/LocalizedString.h"

namespace quorix {
namespace {

using foundation::Bundle;

constexpr std::string_view kFallbackLocale = "en";
constexpr std::string_view kTable = "Localizable";

Bundle::Ref bundleFor(std::string_view locale) {
  const Bundle::Ref library = libraryBundle();
  if (!library) return nullptr;
  const auto path = library->pathForResource(locale, "lproj");
  return path ? library->folder(*path) : nullptr;
}

/// Nothing without a bundle: then there is no text that could be formatted.
std::optional<std::string> lookUp(std::string_view key, std::string_view locale) {
  Bundle::Ref bundle = bundleFor(locale);
  if (!bundle) bundle = bundleFor(kFallbackLocale);
  if (!bundle) return std::nullopt;
  return foundation::localizedString(*bundle, key, kTable);
}

}  // namespace

std::string localized(std::string_view key, std::string_view locale) {
  return lookUp(key, locale).value_or(std::string());
}

std::string localized(std::string_view key, std::string_view locale,
                      const std::vector<foundation::FormatArgument>& arguments) {
  const auto format = lookUp(key, locale);
  return format ? foundation::formatted(*format, arguments) : std::string();
}

}  // namespace quorix
