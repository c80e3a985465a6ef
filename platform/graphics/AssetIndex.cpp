#include "platform/graphics/AssetIndex.h"

#include "platform/graphics/AssetContents.h"

namespace quorix::graphics {
namespace {

// A link on disk may lead back to an enclosing folder.
constexpr int kDeepest = 8;

bool isAsset(std::string_view name) { return name.ends_with("set") && name.find('.') != name.npos; }

}  // namespace

AssetIndex::AssetIndex(const foundation::Bundle& bundle) { add(bundle, "Assets.xcassets", "", 0); }

void AssetIndex::add(const foundation::Bundle& bundle, const std::string& folder,
                     const std::string& prefix, int depth) {
  for (const std::string& name : bundle.folders(folder)) {
    const std::string path = folder + '/' + name;
    if (isAsset(name)) {
      folders_.try_emplace(prefix + name, path);
    } else if (depth < kDeepest) {
      const auto contents = bundle.data(path + "/Contents.json");
      const bool named = contents && providesNamespace(contents->text());
      add(bundle, path, named ? prefix + name + '/' : prefix, depth + 1);
    }
  }
}

std::optional<std::string> AssetIndex::folder(std::string_view name, std::string_view kind) const {
  std::string key(name);
  key.append(".").append(kind);
  const auto found = folders_.find(key);
  if (found == folders_.end()) return std::nullopt;
  return found->second;
}

}  // namespace quorix::graphics
