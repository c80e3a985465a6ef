#pragma once

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/foundation/Data.h"
#include "platform/foundation/Export.h"

namespace quorix::foundation {

/// A folder of resources: compiled into the program, or on disk. Paths inside a bundle are
/// relative, with "/" between their parts; a path that leads out of the bundle is absent.
///
/// Immutable once made; any thread may read.
///
///     Bundle::registerBundle("com.example.shop", Bundle::open("/path/to/resources"));
///     auto table =
///         Bundle::withIdentifier("com.example.shop")->data("en.lproj/Localizable.strings");
class QUORIX_EXPORT Bundle {
 public:
  using Ref = std::shared_ptr<const Bundle>;
  virtual ~Bundle() = default;

  /// The bundle registered under `identifier`, or null.
  static Ref withIdentifier(std::string_view identifier);

  /// The host application's own bundle. Its "Localizable.strings", in the folder of the user's
  /// language ("pt-BR.lproj", "pt.lproj"), "en.lproj" or none, holds the spoken texts. It replaces
  /// the library's bundle when that is not found. Never null; empty unless the host set one.
  static Ref main();
  /// Whether the host set one.
  static bool hasMain();

  /// Registers `bundle` under `identifier`, in place of an earlier one. A null bundle takes the
  /// registration away.
  static void registerBundle(std::string_view identifier, Ref bundle);
  /// Registers `bundle` unless another bundle has that identifier.
  static void registerBundleIfAbsent(std::string_view identifier, Ref bundle);
  /// A null bundle empties the main bundle. To be called before the first view is made: views keep
  /// the texts that they have looked up.
  static void setMain(Ref bundle);

  /// The files that the build compiled into the library.
  static Ref embedded();
  /// A bundle of `files` by their paths, such as files that are compiled into the host's program
  /// or that it generates.
  ///
  ///     static constexpr std::string_view table = "\"%@ %@\" = \"%2$@ is your %1$@\";";
  ///     Bundle::setMain(Bundle::of({{"en.lproj/Localizable.strings", Data::permanent(table)}}));
  static Ref of(std::map<std::string, Data> files);
  /// The folder at `path` (UTF-8) on disk, or null when there is none. Each access reads the file
  /// again.
  static Ref open(const std::string& path);

  /// The path inside this bundle of the folder or file "name.type" ("name" when `type` is empty).
  virtual std::optional<std::string> pathForResource(std::string_view name,
                                                     std::string_view type) const = 0;
  /// The bytes of the file at `path`, if there is one. Copied only for files on disk.
  virtual std::optional<Data> data(const std::string& path) const = 0;

  /// The folder at `path` inside this bundle as a bundle of its own, or null.
  virtual Ref folder(const std::string& path) const = 0;

  /// The names of the folders inside the folder at `path` ("" is the bundle itself), sorted.
  virtual std::vector<std::string> folders(const std::string& path) const = 0;
};

}  // namespace quorix::foundation
