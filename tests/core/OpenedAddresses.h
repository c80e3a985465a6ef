#pragma once

#include "platform/uikit/URLOpener.h"

namespace quorix::testing {

/// Replaces the device's opener while it exists, and records the addresses.
class OpenedAddresses {
 public:
  OpenedAddresses() : before_(uikit::URLOpener::install(opener_)) {}
  ~OpenedAddresses() { uikit::URLOpener::install(before_); }
  OpenedAddresses(const OpenedAddresses&) = delete;
  OpenedAddresses& operator=(const OpenedAddresses&) = delete;

  const std::vector<std::string>& list() const { return opener_->addresses; }

 private:
  struct Opener final : uikit::URLOpener {
    std::vector<std::string> addresses;
    void open(const foundation::URL& url) override { addresses.push_back(url.absoluteString()); }
  };
  std::shared_ptr<Opener> opener_ = std::make_shared<Opener>();
  std::shared_ptr<uikit::URLOpener> before_;
};

}  // namespace quorix::testing
