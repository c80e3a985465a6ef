#include "platform/uikit/Nib.h"

#include "platform/foundation/ParsedFileCache.h"
#include "platform/uikit/NibInstance.h"
#include "platform/uikit/NibReader.h"

namespace quorix::uikit {
namespace {

using Reading = foundation::Result<NibDocument>;

std::shared_ptr<const Reading> read(std::string_view xml) {
  return std::make_shared<const Reading>(NibReader(xml).read());
}

/// Views of what was read, for `owner`; or the refusal of either.
foundation::Result<Nib::Views> instantiate(const Reading& reading, std::string_view name,
                                           std::string_view owner, const Nib::Outlets& outlets) {
  const auto refused = [&](const std::string& why) {
    return foundation::Error{"Nib", 1, std::string(name) + ".xib:" + why};
  };
  if (const auto* error = std::get_if<foundation::Error>(&reading)) {
    return refused(error->description);
  }
  NibInstance instance(std::get<NibDocument>(reading));
  if (const auto refusal = instance.connect(owner, outlets)) return refused(*refusal);
  return instance.outermost();
}

}  // namespace

foundation::Result<Nib::Views> Nib::load(std::string_view name, const foundation::Bundle& bundle,
                                         std::string_view owner, const Outlets& outlets) {
  const auto path = bundle.pathForResource(name, "xib");
  const auto file = path ? bundle.data(*path) : std::nullopt;
  if (!file) {
    return foundation::Error{"Nib", 0, "No interface file named '" + std::string(name) + "'"};
  }
  // Never destroyed: a view may be made while the process ends.
  static auto& cache = *new foundation::ParsedFileCache<Reading>(read);
  return instantiate(*cache.read(*file), name, owner, outlets);
}

foundation::Result<Nib::Views> Nib::parse(std::string_view xml, std::string_view name,
                                          std::string_view owner, const Outlets& outlets) {
  return instantiate(NibReader(xml).read(), name, owner, outlets);
}

}  // namespace quorix::uikit
