#include "tools/quorix/preview/LayeredBundle.h"

#include <algorithm>
#include <iterator>

namespace quorix::tool {

std::optional<std::string> LayeredBundle::pathForResource(std::string_view name,
                                                          std::string_view type) const {
  auto path = upper_->pathForResource(name, type);
  return path ? path : lower_->pathForResource(name, type);
}

std::optional<foundation::Data> LayeredBundle::data(const std::string& path) const {
  auto file = upper_->data(path);
  return file ? file : lower_->data(path);
}

foundation::Bundle::Ref LayeredBundle::folder(const std::string& path) const {
  Ref above = upper_->folder(path);
  Ref below = lower_->folder(path);
  if (above && below) return std::make_shared<LayeredBundle>(above, below);
  return above ? above : below;
}

std::vector<std::string> LayeredBundle::folders(const std::string& path) const {
  const auto above = upper_->folders(path);
  const auto below = lower_->folders(path);
  std::vector<std::string> names;
  std::ranges::set_union(above, below, std::back_inserter(names));
  return names;
}

}  // namespace quorix::tool
