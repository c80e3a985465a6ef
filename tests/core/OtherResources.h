#pragma once

#include <map>
#include <string>
#include <utility>

#include "tests/core/FreshProcess.h"
#include "tests/core/MemoryBundle.h"

namespace quorix::testing {

/// The library has these resources and no others, for as long as this lives.
class OtherResources {
 public:
  explicit OtherResources(foundation::Bundle::Ref bundle) {
    replaceLibraryBundle(std::move(bundle));
  }
  explicit OtherResources(std::map<std::string, std::string> files)
      : OtherResources(memoryBundle(std::move(files))) {}
  /// Nothing but this English table.
  static OtherResources english(const std::string& table) {
    return OtherResources(
        std::map<std::string, std::string>{{"en.lproj/Localizable.strings", table}});
  }
  ~OtherResources() {
    foundation::Bundle::registerBundle(kResourceBundleIdentifier, foundation::Bundle::embedded());
  }
  OtherResources(const OtherResources&) = delete;
  OtherResources& operator=(const OtherResources&) = delete;
};

}  // namespace quorix::testing
