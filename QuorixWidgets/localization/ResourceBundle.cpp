#include "QuorixWidgets/localization/ResourceBundle.h"

#include <memory>
#include <mutex>
#include <utility>

#include "platform/foundation/BundleKinds.h"

namespace quorix {

using foundation::Bundle;

namespace {

/// Marks the library's code among the libraries of a program.
class ResourceBundleClass {};

/// The bundle of that class: the files that are compiled into the same library.
Bundle::Ref bundleFor(ResourceBundleClass) { return Bundle::embedded(); }

/// The library's own resources with the theme over them; null without a theme.
Bundle::Ref& themed() {
  static Bundle::Ref bundle;
  return bundle;
}

}  // namespace

void setTheme(Bundle::Ref theme) {
  const auto own = bundleFor(ResourceBundleClass());
  themed() = theme ? std::make_shared<foundation::LayeredBundle>(std::move(theme), own) : nullptr;
  Bundle::registerBundle(kResourceBundleIdentifier, themed() ? themed() : own);
}

Bundle::Ref libraryBundle() {
  static std::once_flag once;
  std::call_once(
      once, [] { Bundle::registerBundleIfAbsent(kResourceBundleIdentifier, Bundle::embedded()); });
  return Bundle::withIdentifier(kResourceBundleIdentifier);
}

const Bundle::Ref& resourceBundle() {
  static const Bundle::Ref bundle = themed() ? themed() : bundleFor(ResourceBundleClass());
  return bundle;
}

}  // namespace quorix
