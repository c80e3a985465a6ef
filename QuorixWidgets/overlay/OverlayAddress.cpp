#include "QuorixWidgets/overlay/OverlayAddress.h"

#include "QuorixWidgets/localization/ServiceAddresses.h"
#include "platform/foundation/URL.h"

namespace quorix {
namespace {

using Text = std::optional<std::string>;

/// The pages use one language code for both Norwegian languages.
Text languageOfPage(const Text& locale) {
  return locale == "nb" || locale == "nn" ? Text("no") : locale;
}

}  // namespace

std::string OverlayAddress::personalPage() {
  return std::string(widgetServiceBaseURL()) + "/users/details/";
}

std::string OverlayAddress::generalPage() {
  return std::string(modulesServiceBaseURL()) + "/html/overlays/info";
}

std::optional<foundation::URL> OverlayAddress::url() const {
  auto components = foundation::URLComponents::parse(token ? overlayURL : genericOverlayURL);
  if (!components) return std::nullopt;
  components->setQueryItems({{"lang", languageOfPage(locale)}});
  if (userName && token) {
    components->appendQueryItem({"name", userName});
    components->appendQueryItem({"token", token});
  }
  return components->url();
}

}  // namespace quorix
