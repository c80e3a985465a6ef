#include "QuorixWidgets/localization/ServiceAddresses.h"

namespace quorix {

std::string_view modulesServiceBaseURL() { return QUORIX_MODULES_URL; }
std::string_view widgetServiceBaseURL() { return QUORIX_WIDGET_URL; }

std::string OverlayAddress::personalPage() {
  return std::string(widgetServiceBaseURL()) + "/users/details/";
}

std::string OverlayAddress::generalPage() {
  return std::string(modulesServiceBaseURL()) + "/html/overlays/info";
}

std::optional<foundation::URL> OverlayAddress::url() const {
  auto components = foundation::URLComponents::parse(token ? overlayURL : genericOverlayURL);
  if (!components) return std::nullopt;
  // The pages use one language code for both Norwegian languages.
  const bool norwegian = locale == "nb" || locale == "nn";
  components->setQueryItems({{"lang", norwegian ? "no" : locale}});
  if (userName && token) {
    components->appendQueryItem({"name", userName});
    components->appendQueryItem({"token", token});
  }
  return components->url();
}

}  // namespace quorix
