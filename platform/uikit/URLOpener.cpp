#include "platform/uikit/URLOpener.h"

#include <utility>

#include "platform/uikit/OutsideAddresses.h"

namespace quorix::uikit {
namespace {

std::shared_ptr<URLOpener>& installed() {
  static std::shared_ptr<URLOpener> opener;
  return opener;
}

}  // namespace

std::shared_ptr<URLOpener> URLOpener::install(std::shared_ptr<URLOpener> opener) {
  return std::exchange(installed(), std::move(opener));
}

bool URLOpener::openOutside(const foundation::URL& url) {
  const auto opener = installed();  // kept, should opening replace it
  if (!opener || !opensOutside(url)) return false;
  opener->open(url);
  return true;
}

}  // namespace quorix::uikit
