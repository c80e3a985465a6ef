#include "QuorixWidgets/localization/ResourceBundle.h"

#include <utility>

#include "platform/foundation/BundleKinds.h"

namespace quorix {

using foundation::Bundle;

namespace {

/// Marks the library's code among the libraries of a program.
class ResourceBundleClass {};

/// The bundle of that class: the files that are compiled into the same library.
Bundle::Ref bundleFor(ResourceBundleClass) { return Bundle::embedded(); }

/// The identifier of the library's own resources with the theme over them.
constexpr std::string_view themedIdentifier = "example.quorix.QuorixWidgets.themed";

/// The bundle with that identifier; `own` if there was none so far.
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
