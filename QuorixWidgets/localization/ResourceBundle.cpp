#include "QuorixWidgets/localization/ResourceBundle.h"

#include <mutex>

namespace quorix {

using foundation::Bundle;

Bundle::Ref libraryBundle() {
  static std::once_flag once;
  std::call_once(
      once, [] { Bundle::registerBundleIfAbsent(kResourceBundleIdentifier, Bundle::embedded()); });
  return Bundle::withIdentifier(kResourceBundleIdentifier);
}

const Bundle::Ref& resourceBundle() {
  static const Bundle::Ref bundle = [] {
    const Bundle::Ref registered = libraryBundle();
    return registered ? registered : Bundle::embedded();
  }();
  return bundle;
}

}  // namespace quorix
