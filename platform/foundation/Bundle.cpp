#include "platform/foundation/Bundle.h"

#include <functional>
#include <map>
#include <mutex>
#include <utility>

namespace quorix::foundation {
namespace {

struct Registry {
  std::mutex mutex;
  std::map<std::string, Bundle::Ref, std::less<>> bundles;
  Bundle::Ref main;
};

Registry& registry() {
  static Registry instance;
  return instance;
}

}  // namespace

Bundle::Ref Bundle::withIdentifier(std::string_view identifier) {
  Registry& r = registry();
  const std::scoped_lock lock(r.mutex);
  const auto found = r.bundles.find(identifier);
  return found == r.bundles.end() ? nullptr : found->second;
}

Bundle::Ref Bundle::main() {
  static const Ref empty = of({});
  Registry& r = registry();
  const std::scoped_lock lock(r.mutex);
  return r.main ? r.main : empty;
}

bool Bundle::hasMain() {
  Registry& r = registry();
  const std::scoped_lock lock(r.mutex);
  return r.main != nullptr;
}

void Bundle::registerBundle(std::string_view identifier, Ref bundle) {
  Registry& r = registry();
  const std::scoped_lock lock(r.mutex);
  if (bundle) {
    r.bundles.insert_or_assign(std::string(identifier), std::move(bundle));
  } else {
    r.bundles.erase(std::string(identifier));
  }
}

void Bundle::registerBundleIfAbsent(std::string_view identifier, Ref bundle) {
  Registry& r = registry();
  const std::scoped_lock lock(r.mutex);
  if (bundle) r.bundles.try_emplace(std::string(identifier), std::move(bundle));
}

void Bundle::setMain(Ref bundle) {
  Registry& r = registry();
  const std::scoped_lock lock(r.mutex);
  r.main = std::move(bundle);
}

}  // namespace quorix::foundation
