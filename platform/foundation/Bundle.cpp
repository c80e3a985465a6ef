#include "platform/foundation/Bundle.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <map>
#include <mutex>
#include <utility>

#include "platform/foundation/BundleKinds.h"
#include "platform/foundation/Runtime.h"

namespace quorix::foundation {

struct BundleRegistry {
  std::mutex mutex;
  std::map<std::string, Bundle::Ref, std::less<>> bundles;  // null: the registration was removed
  Bundle::Ref main;
};

Bundle::Ref Bundle::withIdentifier(std::string_view identifier) {
  auto& r = Runtime::the<BundleRegistry>();
  const std::scoped_lock lock(r.mutex);
  const auto found = r.bundles.find(identifier);
  return found == r.bundles.end() ? nullptr : found->second;
}

Bundle::Ref Bundle::main() {
  static const Ref empty = of({});
  auto& r = Runtime::the<BundleRegistry>();
  const std::scoped_lock lock(r.mutex);
  return r.main ? r.main : empty;
}

bool Bundle::hasMain() {
  auto& r = Runtime::the<BundleRegistry>();
  const std::scoped_lock lock(r.mutex);
  return r.main != nullptr;
}

void Bundle::registerBundle(std::string_view identifier, Ref bundle) {
  auto& r = Runtime::the<BundleRegistry>();
  const std::scoped_lock lock(r.mutex);
  r.bundles.insert_or_assign(std::string(identifier), std::move(bundle));
}

void Bundle::registerBundleIfAbsent(std::string_view identifier, Ref bundle) {
  auto& r = Runtime::the<BundleRegistry>();
  const std::scoped_lock lock(r.mutex);
  if (!r.bundles.contains(identifier)) r.bundles.emplace(identifier, std::move(bundle));
}

void Bundle::setMain(Ref bundle) {
  auto& r = Runtime::the<BundleRegistry>();
  const std::scoped_lock lock(r.mutex);
  r.main = std::move(bundle);
}

namespace {

/// Whether `path` is relative and made of plain names with one "/" between them. Refuses what a
/// file system would interpret: "..", ".", drives, "\", NUL.
bool isInnerPath(std::string_view path) {
  if (path.find_first_of(std::string_view("\\:\0", 3)) != path.npos) return false;
  for (;;) {
    const auto slash = path.find('/');
    const auto part = path.substr(0, slash);
    if (part.empty() || part == "." || part == "..") return false;
    if (slash == path.npos) return true;
    path.remove_prefix(slash + 1);
  }
}

std::string fileName(std::string_view name, std::string_view type) {
  std::string path(name);
  if (!type.empty()) path.append(".").append(type);
  return path;
}

/// A bundle over a table of files in memory.
class MemoryBundle final : public Bundle {
 public:
  using Table = std::map<std::string_view, Data>;

  /// `table` keeps the memory that its paths and bytes view. `prefix` is "" or ends in "/".
  explicit MemoryBundle(std::shared_ptr<const Table> table, std::string prefix = {})
      : table_(std::move(table)), prefix_(std::move(prefix)) {}

  std::optional<std::string> pathForResource(std::string_view name,
                                             std::string_view type) const override {
    std::string path = fileName(name, type);
    if (!isInnerPath(path)) return std::nullopt;
    if (!table_->contains(prefix_ + path) && !hasFolder(path)) return std::nullopt;
    return path;
  }

  std::optional<Data> data(const std::string& path) const override {
    const auto found = table_->find(prefix_ + path);
    if (found == table_->end()) return std::nullopt;
    return found->second;
  }

  Ref folder(const std::string& path) const override {
    if (!isInnerPath(path) || !hasFolder(path)) return nullptr;
    return std::make_shared<MemoryBundle>(table_, prefix_ + path + '/');
  }

  std::vector<std::string> folders(const std::string& path) const override {
    std::vector<std::string> names;
    const std::string start = path.empty() ? prefix_ : prefix_ + path + '/';
    for (auto file = table_->lower_bound(start);
         file != table_->end() && file->first.starts_with(start); ++file) {
      const auto rest = file->first.substr(start.size());
      const auto slash = rest.find('/');
      if (slash == rest.npos) continue;
      const auto name = rest.substr(0, slash);
      // The table is sorted: the files of a folder follow each other.
      if (names.empty() || names.back() != name) names.emplace_back(name);
    }
    return names;
  }

 private:
  bool hasFolder(const std::string& path) const {
    const std::string start = prefix_ + path + '/';
    const auto next = table_->lower_bound(start);
    return next != table_->end() && next->first.starts_with(start);
  }

  std::shared_ptr<const Table> table_;
  std::string prefix_;
};

namespace fs = std::filesystem;

fs::path fromUtf8(std::string_view text) {
  return fs::path(std::u8string(text.begin(), text.end()));
}

std::string toUtf8(const fs::path& path) {
  const std::u8string text = path.u8string();
  return std::string(text.begin(), text.end());
}

/// A bundle over a folder on disk. Refuses files outside the folder, even if a symbolic link leads
/// there.
class FolderBundle final : public Bundle {
 public:
  /// The folder at `path`, or null when there is none.
  static Ref open(const fs::path& path) {
    std::error_code error;
    fs::path root = fs::canonical(path, error);
    if (error || !fs::is_directory(root, error)) return nullptr;
    return Ref(new FolderBundle(std::move(root)));
  }

  std::optional<std::string> pathForResource(std::string_view name,
                                             std::string_view type) const override {
    std::string path = fileName(name, type);
    if (!locate(path)) return std::nullopt;
    return path;
  }

  std::optional<Data> data(const std::string& path) const override {
    const auto target = locate(path);
    std::error_code error;
    if (!target || !fs::is_regular_file(*target, error)) return std::nullopt;
    std::ifstream file(*target, std::ios::binary);
    std::string bytes{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    if (!file.is_open() || file.bad()) return std::nullopt;
    return Data(std::move(bytes));
  }

  Ref folder(const std::string& path) const override {
    const auto target = locate(path);
    return target ? open(*target) : nullptr;
  }

  std::vector<std::string> folders(const std::string& path) const override {
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

 private:
  explicit FolderBundle(fs::path root) : root_(std::move(root)) {}

  /// The file or folder at `path` if it exists and its canonical path is inside the root.
  std::optional<fs::path> locate(const std::string& path) const {
    if (!isInnerPath(path)) return std::nullopt;
    std::error_code error;
    fs::path target = fs::canonical(root_ / fromUtf8(path), error);
    if (error) return std::nullopt;
    const auto [end, rest] =
        std::mismatch(root_.begin(), root_.end(), target.begin(), target.end());
    if (end != root_.end()) return std::nullopt;
    return target;
  }

  fs::path root_;  // canonical
};

/// Two bundles, one over the other.
class LayeredBundle final : public Bundle {
 public:
  LayeredBundle(Ref upper, Ref lower) : upper_(std::move(upper)), lower_(std::move(lower)) {}

  std::optional<std::string> pathForResource(std::string_view name,
                                             std::string_view type) const override {
    auto path = upper_->pathForResource(name, type);
    return path ? path : lower_->pathForResource(name, type);
  }

  std::optional<Data> data(const std::string& path) const override {
    auto file = upper_->data(path);
    return file ? file : lower_->data(path);
  }

  Ref folder(const std::string& path) const override {
    return layered(upper_->folder(path), lower_->folder(path));
  }

  std::vector<std::string> folders(const std::string& path) const override {
    const auto above = upper_->folders(path);
    const auto below = lower_->folders(path);
    std::vector<std::string> names;
    std::ranges::set_union(above, below, std::back_inserter(names));
    return names;
  }

 private:
  Ref upper_;
  Ref lower_;
};

}  // namespace

Bundle::Ref Bundle::embedded() {
  static const Ref bundle = [] {
    MemoryBundle::Table table;
    for (const EmbeddedFile& file : embeddedFiles()) {
      const auto* text = reinterpret_cast<const char*>(file.bytes);
      table.emplace(file.path, Data::permanent({text, file.size}));
    }
    return std::make_shared<MemoryBundle>(
        std::make_shared<const MemoryBundle::Table>(std::move(table)));
  }();
  return bundle;
}

Bundle::Ref Bundle::of(std::map<std::string, Data> files) {
  struct Kept {
    std::map<std::string, Data> files;
    MemoryBundle::Table table;
  };
  const auto kept = std::make_shared<Kept>();
  kept->files = std::move(files);
  for (const auto& [path, data] : kept->files) kept->table.emplace(path, data);
  return std::make_shared<MemoryBundle>(
      std::shared_ptr<const MemoryBundle::Table>(kept, &kept->table));
}

Bundle::Ref Bundle::open(const std::string& path) { return FolderBundle::open(fromUtf8(path)); }

Bundle::Ref layered(Bundle::Ref upper, Bundle::Ref lower) {
  if (!upper || !lower) return upper ? upper : lower;
  return std::make_shared<LayeredBundle>(std::move(upper), std::move(lower));
}

}  // namespace quorix::foundation
