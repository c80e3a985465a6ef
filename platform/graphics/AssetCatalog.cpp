#include "platform/graphics/AssetCatalog.h"

#include <map>
#include <memory>
#include <mutex>

#include "platform/foundation/Cache.h"
#include "platform/foundation/Runtime.h"
#include "platform/graphics/AssetContents.h"

namespace quorix::graphics {
namespace {

using foundation::Bundle;
using foundation::Data;

constexpr int deepestFolder = 8;  // a link on disk may lead back to an enclosing folder

}  // namespace

/// An asset's folder inside its bundle, and the text of its `Contents.json`.
struct Contents {
  std::string folder;
  Data json;
};

bool isAsset(std::string_view name) { return name.ends_with("set") && name.find('.') != name.npos; }

/// The assets of one bundle. Caches each color and image, because surfaces ask at every paint.
class Catalog {
 public:
  /// Reads the catalog of `bundle`. If two assets have one name, the first in folder order counts.
  explicit Catalog(const Bundle& bundle) { addFolder(bundle, "Assets.xcassets", "", 0); }

  std::optional<ColorSet> color(const Bundle& bundle, std::string_view name) {
    return once(colors_, name, [&]() -> std::optional<ColorSet> {
      const auto found = contents(bundle, name, "colorset");
      return found ? parseColorSet(found->json) : std::nullopt;
    });
  }

  std::optional<ImageAsset> image(const Bundle& bundle, std::string_view name) {
    return once(images_, name, [&] { return readImage(bundle, name); });
  }

  std::optional<Contents> contents(const Bundle& bundle, std::string_view name,
                                   std::string_view kind) const {
    const auto found = folders_.find(std::string(name).append(".").append(kind));
    if (found == folders_.end()) return std::nullopt;
    std::string folder = found->second + '/';
    auto json = bundle.data(folder + "Contents.json");
    if (!json) return std::nullopt;
    return Contents{std::move(folder), *std::move(json)};
  }

 private:
  template <class T>
  using Read = std::map<std::string, std::optional<T>, std::less<>>;

  void addFolder(const Bundle& bundle, const std::string& folder, const std::string& prefix,
                 int depth) {
    for (const std::string& name : bundle.folders(folder)) {
      const std::string path = folder + '/' + name;
      if (isAsset(name)) {
        folders_.try_emplace(prefix + name, path);
      } else if (depth < deepestFolder) {
        const auto json = bundle.data(path + "/Contents.json");
        const bool named = json && providesNamespace(*json);
        addFolder(bundle, path, named ? prefix + name + '/' : prefix, depth + 1);
      }
    }
  }

  std::optional<ImageAsset> readImage(const Bundle& bundle, std::string_view name) const {
    const auto found = contents(bundle, name, "imageset");
    const auto files = found ? parseImageSet(found->json) : std::nullopt;
    const auto light = files ? bundle.data(found->folder + files->light) : std::nullopt;
    const auto size = light ? readSvgSize(*light) : std::nullopt;
    if (!size) return std::nullopt;
    ImageAsset image{*light, std::nullopt, files->isTemplate, size->width, size->height};
    if (files->dark) {
      image.dark = bundle.data(found->folder + *files->dark);
      if (image.dark && !readSvgSize(*image.dark)) image.dark.reset();
    }
    return image;
  }

  template <class T, class Reader>
  std::optional<T> once(Read<T>& known, std::string_view name, Reader read) {
    const std::scoped_lock lock(mutex_);
    const auto found = known.find(name);
    return found != known.end() ? found->second : known.emplace(name, read()).first->second;
  }

  std::map<std::string, std::string> folders_;  // "name.kind" to the asset's folder
  std::mutex mutex_;
  Read<ColorSet> colors_;
  Read<ImageAsset> images_;
};

/// Identifies a bundle without keeping it alive.
struct BundleKey {
  std::weak_ptr<const Bundle> bundle;

  bool operator==(const BundleKey& other) const {
    return !bundle.owner_before(other.bundle) && !other.bundle.owner_before(bundle);
  }
};

struct AssetCatalogs : foundation::Cache<BundleKey, std::shared_ptr<Catalog>> {
  AssetCatalogs() : Cache(16) {}
};

namespace {

Bundle::Ref orMain(const Bundle::Ref& bundle) { return bundle ? bundle : Bundle::main(); }

std::shared_ptr<Catalog> catalog(const Bundle::Ref& bundle) {
  return foundation::Runtime::the<AssetCatalogs>().get(
      {bundle}, [&] { return std::make_shared<Catalog>(*bundle); });
}

}  // namespace

std::optional<ColorSet> colorSet(const Bundle::Ref& bundle, std::string_view name) {
  const Bundle::Ref source = orMain(bundle);
  return catalog(source)->color(*source, name);
}

std::optional<ImageAsset> imageSet(const Bundle::Ref& bundle, std::string_view name) {
  const Bundle::Ref source = orMain(bundle);
  return catalog(source)->image(*source, name);
}

std::optional<Data> dataSet(const Bundle::Ref& bundle, std::string_view name) {
  const Bundle::Ref source = orMain(bundle);
  const auto found = catalog(source)->contents(*source, name, "dataset");
  const auto file = found ? parseDataSet(found->json) : std::nullopt;
  return file ? source->data(found->folder + *file) : std::nullopt;
}

}  // namespace quorix::graphics
