#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/foundation/Bundle.h"
#include "platform/foundation/Error.h"
#include "platform/uikit/UILabel.h"
#include "platform/uikit/UIView.h"

namespace quorix::uikit {

/// Interface files: views that a designer's tool wrote as XML ("Name.xib").
///
/// Supports the part of the format that texts need: views and labels with frames, colors in sRGB,
/// the system's font, edge and size constraints, accessibility labels and traits, and the owner's
/// outlets. A file with any other element, attribute or value is refused, and the error has the
/// line and the name. A view is shown as designed, or not at all.
class Nib {
 public:
  /// The owner's variables that an interface file sets, by name. They must outlive the load.
  struct Outlets {
    std::map<std::string, std::shared_ptr<UIView>*, std::less<>> views;
    std::map<std::string, std::weak_ptr<UILabel>*, std::less<>> labels;
  };

  using Views = std::vector<std::shared_ptr<UIView>>;

  /// Loads the interface file `name` of `bundle` for an owner of the class `owner`. On success it
  /// sets the outlets and returns the file's views in their order; on an error it sets no outlet.
  /// Never throws. Main thread.
  ///
  ///     auto views = Nib::load("Card", *bundle, "CardView",
  ///                            {{{"contentView", &contentView_}}, {{"titleLabel",
  ///                            &titleLabel_}}});
  static foundation::Result<Views> load(std::string_view name, const foundation::Bundle& bundle,
                                        std::string_view owner, const Outlets& outlets);
};

}  // namespace quorix::uikit
