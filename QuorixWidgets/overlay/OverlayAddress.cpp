#include "QuorixWidgets/overlay/OverlayAddress.h"

#include "QuorixWidgets/localization/ServiceAddresses.h"
#include "platform/foundation/URLComponents.h"

namespace quorix {
namespace {

using Text = std::optional<std::string>;

/// The pages know Norwegian by one code only.
Text languageOfPage(const Text& locale) {
  return locale == "nb" || locale == "nn" ? Text("no") : locale;
}

}  // namespace

std::optional<foundation::URL> OverlayAddress::url() const {
  const std::string page = token ? std::string(widgetServiceBaseURL) + "/users/details/"
                                 : std::string(modulesServiceBaseURL) + "/html/overlays/info";
  auto components = foundation::URLComponents::parse(page);
  if (!components) return std::nullopt;
  components->setQueryItems({{"lang", languageOfPage(locale)}});
  if (userName && token) {
    components->appendQueryItem({"name", userName});
    components->appendQueryItem({"token", token});
  }
  return components->url();
}

}  // namespace quorix
