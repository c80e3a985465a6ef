#include "platform/foundation/FolderBundle.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <utility>

#include "platform/foundation/BundlePath.h"

namespace quorix::foundation {
namespace {

namespace fs = std::filesystem;

fs::path fromUtf8(std::string_view text) {
  return fs::path(std::u8string(text.begin(), text.end()));
}

std::string toUtf8(const fs::path& path) {
  const std::u8string text = path.u8string();
  return std::string(text.begin(), text.end());
}

}  // namespace

Bundle::Ref Bundle::open(const std::string& path) { return FolderBundle::open(fromUtf8(path)); }

Bundle::Ref FolderBundle::open(const fs::path& path) {
  std::error_code error;
  fs::path root = fs::canonical(path, error);
  if (error || !fs::is_directory(root, error)) return nullptr;
  return Ref(new FolderBundle(std::move(root)));
}

/// The file or folder at `path` when it is there and, with links followed, inside the root.
std::optional<fs::path> FolderBundle::locate(const std::string& path) const {
  if (!isInnerPath(path)) return std::nullopt;
  std::error_code error;
  fs::path target = fs::canonical(root_ / fromUtf8(path), error);
  if (error) return std::nullopt;
  const auto [end, rest] = std::mismatch(root_.begin(), root_.end(), target.begin(), target.end());
  if (end != root_.end()) return std::nullopt;
  return target;
}

std::optional<std::string> FolderBundle::pathForResource(std::string_view name,
                                                         std::string_view type) const {
  std::string path(name);
  if (!type.empty()) path.append(".").append(type);
  if (!locate(path)) return std::nullopt;
  return path;
}

std::optional<Data> FolderBundle::data(const std::string& path) const {
  const auto target = locate(path);
  std::error_code error;
  if (!target || !fs::is_regular_file(*target, error)) return std::nullopt;
  std::ifstream file(*target, std::ios::binary);
  std::string bytes{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
  if (!file.is_open() || file.bad()) return std::nullopt;
  return Data(std::move(bytes));
}

Bundle::Ref FolderBundle::folder(const std::string& path) const {
  const auto target = locate(path);
  return target ? open(*target) : nullptr;
}

std::vector<std::string> FolderBundle::folders(const std::string& path) const {
  std::vector<std::string> names;
  const auto target = path.empty() ? std::optional(root_) : locate(path);
  if (!target) return names;
  std::error_code error;
  fs::directory_iterator entry(*target, error);
  for (; !error && entry != fs::directory_iterator(); entry.increment(error)) {
    std::error_code unreadable;
    if (entry->is_directory(unreadable)) names.push_back(toUtf8(entry->path().filename()));
  }
  std::sort(names.begin(), names.end());
  return names;
}

}  // namespace quorix::foundation
