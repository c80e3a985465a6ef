#pragma once

#include <gtest/gtest.h>

#include <cstdlib>

#include "QuorixWidgets/localization/ResourceBundle.h"
#include "platform/foundation/Bundle.h"

namespace quorix::testing {

/// A bundle over `files` (path to contents).
inline foundation::Bundle::Ref memoryBundle(const std::map<std::string, std::string>& files) {
  std::map<std::string, foundation::Data> table;
  for (const auto& [path, text] : files) table.emplace(path, text);
  return foundation::Bundle::of(std::move(table));
}

/// Starts the program again for each following death test. Under an emulator this is not possible:
/// the environment then selects a fork, and CTest starts each test separately.
inline void useFreshProcesses() {
  if (!std::getenv("GTEST_DEATH_TEST_STYLE")) GTEST_FLAG_SET(death_test_style, "threadsafe");
}

/// Tests what a process makes only once, each in its own process.
class FreshProcessDeathTest : public ::testing::Test {
 protected:
  FreshProcessDeathTest() { useFreshProcesses(); }
};

#define EXPECT_IN_FRESH_PROCESS(condition) \
  EXPECT_EXIT(std::exit((condition) ? 0 : 1), ::testing::ExitedWithCode(0), "")

inline void replaceLibraryBundle(foundation::Bundle::Ref bundle) {
  foundation::Bundle::registerBundle(kResourceBundleIdentifier, std::move(bundle));
}

/// Replaces the library's resources by these while it exists.
class OtherResources {
 public:
  explicit OtherResources(foundation::Bundle::Ref bundle) {
    replaceLibraryBundle(std::move(bundle));
  }
  explicit OtherResources(std::map<std::string, std::string> files)
      : OtherResources(memoryBundle(std::move(files))) {}
  /// Only this English table.
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
