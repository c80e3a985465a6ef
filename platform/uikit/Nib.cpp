#include "platform/uikit/Nib.h"

#include "platform/uikit/NibReader.h"

namespace quorix::uikit {

foundation::Result<Nib::Views> Nib::load(std::string_view name, const foundation::Bundle& bundle,
                                         std::string_view owner, const Outlets& outlets) {
  const auto path = bundle.pathForResource(name, "xib");
  const auto file = path ? bundle.data(*path) : std::nullopt;
  if (!file) {
    return foundation::Error{"Nib", 0, "No interface file named '" + std::string(name) + "'"};
  }
  return parse(file->text(), name, owner, outlets);
}

foundation::Result<Nib::Views> Nib::parse(std::string_view xml, std::string_view name,
                                          std::string_view owner, const Outlets& outlets) {
  return NibReader(xml, name).read(owner, outlets);
}

}  // namespace quorix::uikit
