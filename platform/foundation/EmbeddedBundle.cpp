#include "platform/foundation/EmbeddedBundle.h"

#include <utility>

#include "platform/foundation/BundlePath.h"

namespace quorix::foundation {

EmbeddedBundle::EmbeddedBundle(std::span<const EmbeddedFile> files) {
  auto table = std::make_shared<Table>();
  for (const EmbeddedFile& file : files) {
    const auto* text = reinterpret_cast<const char*>(file.bytes);
    table->emplace(file.path, Data::permanent({text, file.size}));
  }
  table_ = std::move(table);
}

EmbeddedBundle::EmbeddedBundle(std::shared_ptr<const Table> table, std::string prefix)
    : table_(std::move(table)), prefix_(std::move(prefix)) {}

bool EmbeddedBundle::hasFolder(const std::string& path) const {
  const std::string start = prefix_ + path + '/';
  const auto next = table_->lower_bound(start);
  return next != table_->end() && next->first.starts_with(start);
}

std::optional<std::string> EmbeddedBundle::pathForResource(std::string_view name,
                                                           std::string_view type) const {
  std::string path(name);
  if (!type.empty()) path.append(".").append(type);
  if (!isInnerPath(path)) return std::nullopt;
  if (!table_->contains(prefix_ + path) && !hasFolder(path)) return std::nullopt;
  return path;
}

std::optional<Data> EmbeddedBundle::data(const std::string& path) const {
  const auto found = table_->find(prefix_ + path);
  if (found == table_->end()) return std::nullopt;
  return found->second;
}

Bundle::Ref EmbeddedBundle::folder(const std::string& path) const {
  if (!isInnerPath(path) || !hasFolder(path)) return nullptr;
  return Ref(new EmbeddedBundle(table_, prefix_ + path + '/'));
}

std::vector<std::string> EmbeddedBundle::folders(const std::string& path) const {
  std::vector<std::string> names;
  const std::string start = path.empty() ? prefix_ : prefix_ + path + '/';
  for (auto file = table_->lower_bound(start);
       file != table_->end() && file->first.starts_with(start); ++file) {
    const auto rest = file->first.substr(start.size());
    const auto slash = rest.find('/');
    if (slash == rest.npos) continue;
    const auto name = rest.substr(0, slash);
    // The table is sorted, so one folder's files stand together.
    if (names.empty() || names.back() != name) names.emplace_back(name);
  }
  return names;
}

}  // namespace quorix::foundation
