#include "QuorixWidgets/localization/ResourceBundle.h"

#include <utility>

#include "platform/foundation/BundleKinds.h"

namespace quorix {

using foundation::Bundle;

namespace {

/// Identifies the library, to find its bundle.
class ResourceBundleClass {};

/// The bundle of that class: the files that are compiled into the library.
Bundle::Ref bundleFor(ResourceBundleClass) { return Bundle::embedded(); }

/// The identifier of the library's own resources combined with the theme.
constexpr std::string_view themedIdentifier = "example.quorix.QuorixWidgets.themed";

/// The bundle with that identifier. Registers `own` if there was none.
Bundle::Ref registered(std::string_view identifier, Bundle::Ref own) {
  Bundle::registerBundleIfAbsent(identifier, std::move(own));
  return Bundle::withIdentifier(identifier);
}

}  // namespace

void setTheme(Bundle::Ref theme) {
  const auto own = bundleFor(ResourceBundleClass());
  const auto themed = foundation::layered(std::move(theme), own);
  Bundle::registerBundle(themedIdentifier, themed);
  Bundle::registerBundle(kResourceBundleIdentifier, themed);
}

Bundle::Ref libraryBundle() { return registered(kResourceBundleIdentifier, Bundle::embedded()); }

const Bundle::Ref& resourceBundle() {
  static const Bundle::Ref bundle = registered(themedIdentifier, bundleFor(ResourceBundleClass()));
  return bundle;
}

}  // namespace quorix
