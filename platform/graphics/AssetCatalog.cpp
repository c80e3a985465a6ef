#include "platform/graphics/AssetCatalog.h"

#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <string>

#include "platform/graphics/AssetContents.h"
#include "platform/graphics/AssetIndex.h"
#include "platform/graphics/SvgSize.h"

namespace quorix::graphics {
namespace {

using foundation::Bundle;
using foundation::Data;

/// What has been read from one bundle. Colours and images are asked for at every paint.
struct Catalog {
  explicit Catalog(const Bundle& bundle) : index(bundle) {}

  template <class T>
  using Read = std::map<std::string, std::optional<T>, std::less<>>;

  const AssetIndex index;
  std::mutex mutex;
  Read<ColorSet> colors;
  Read<ImageAsset> images;
};

/// The catalogue of `bundle`, shared by all who ask while the bundle lives.
std::shared_ptr<Catalog> catalog(const Bundle::Ref& bundle) {
  using Catalogs = std::map<std::weak_ptr<const Bundle>, std::shared_ptr<Catalog>,
                            std::owner_less<std::weak_ptr<const Bundle>>>;
  static std::mutex mutex;
  static Catalogs catalogs;
  const std::scoped_lock lock(mutex);
  const auto found = catalogs.find(bundle);
  if (found != catalogs.end()) return found->second;
  std::erase_if(catalogs, [](const auto& entry) { return entry.first.expired(); });
  return catalogs[bundle] = std::make_shared<Catalog>(*bundle);
}

std::optional<Data> contents(const Bundle& bundle, const AssetIndex& index, std::string_view name,
                             std::string_view kind, std::string& folder) {
  const auto found = index.folder(name, kind);
  if (!found) return std::nullopt;
  folder = *found + '/';
  return bundle.data(folder + "Contents.json");
}

std::optional<ColorSet> readColorSet(const Bundle& bundle, const AssetIndex& index,
                                     std::string_view name) {
  std::string folder;
  const auto json = contents(bundle, index, name, "colorset", folder);
  return json ? parseColorSet(json->text()) : std::nullopt;
}

std::optional<ImageAsset> readImageSet(const Bundle& bundle, const AssetIndex& index,
                                       std::string_view name) {
  std::string folder;
  const auto json = contents(bundle, index, name, "imageset", folder);
  const auto files = json ? parseImageSet(json->text()) : std::nullopt;
  const auto light = files ? bundle.data(folder + files->light) : std::nullopt;
  const auto size = light ? readSvgSize(light->text()) : std::nullopt;
  if (!size) return std::nullopt;
  ImageAsset image{*light, std::nullopt, files->isTemplate, size->width, size->height};
  if (files->dark) {
    image.dark = bundle.data(folder + *files->dark);
    if (image.dark && !readSvgSize(image.dark->text())) image.dark.reset();
  }
  return image;
}

/// The value under `name` in `known`, read on the first call.
template <class T, class Reader>
std::optional<T> cached(Catalog& catalog, Catalog::Read<T>& known, const Bundle& bundle,
                        std::string_view name, Reader read) {
  const std::scoped_lock lock(catalog.mutex);
  const auto found = known.find(name);
  if (found != known.end()) return found->second;
  return known.emplace(name, read(bundle, catalog.index, name)).first->second;
}

}  // namespace

std::optional<ColorSet> colorSet(const Bundle::Ref& bundle, std::string_view name) {
  const Bundle::Ref source = bundle ? bundle : Bundle::main();
  const auto c = catalog(source);
  return cached<ColorSet>(*c, c->colors, *source, name, readColorSet);
}

std::optional<ImageAsset> imageSet(const Bundle::Ref& bundle, std::string_view name) {
  const Bundle::Ref source = bundle ? bundle : Bundle::main();
  const auto c = catalog(source);
  return cached<ImageAsset>(*c, c->images, *source, name, readImageSet);
}

std::optional<Data> dataSet(const Bundle::Ref& bundle, std::string_view name) {
  const Bundle::Ref source = bundle ? bundle : Bundle::main();
  std::string folder;
  const auto json = contents(*source, catalog(source)->index, name, "dataset", folder);
  const auto file = json ? parseDataSet(json->text()) : std::nullopt;
  return file ? source->data(folder + *file) : std::nullopt;
}

}  // namespace quorix::graphics
