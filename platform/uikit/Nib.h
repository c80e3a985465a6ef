#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/foundation/Bundle.h"
#include "platform/foundation/Result.h"
#include "platform/uikit/UILabel.h"
#include "platform/uikit/UIView.h"

namespace quorix::uikit {

/// Interface files: views that a designer's tool wrote as XML ("Name.xib").
///
/// Read is the part of the format that laid-out texts need: views and labels with frames, colours
/// in sRGB, the system's font, edge and size constraints, accessibility labels and traits, and the
/// owner's outlets. An element, an attribute or a value outside it refuses the whole file
/// with the line and the name: what is shown is all that the designer sees, or nothing.
class Nib {
 public:
  /// The places of an owner that an interface file fills by name; they outlive the load.
  struct Outlets {
    std::map<std::string, std::shared_ptr<UIView>*, std::less<>> views;
    std::map<std::string, std::weak_ptr<UILabel>*, std::less<>> labels;
  };

  using Views = std::vector<std::shared_ptr<UIView>>;

  /// Loads the interface file `name` of `bundle` for an owner of the class `owner`. On success the
  /// outlets are connected, and the file's views returned in their order; otherwise nothing is
  /// touched. Never throws, whatever the file holds. Main thread.
  ///
  ///     auto views = Nib::load("Card", *bundle, "CardView",
  ///                            {{{"contentView", &contentView_}}, {{"titleLabel",
  ///                            &titleLabel_}}});
  static foundation::Result<Views> load(std::string_view name, const foundation::Bundle& bundle,
                                        std::string_view owner, const Outlets& outlets);
  /// The same from the file's text; `name` is for messages.
  static foundation::Result<Views> parse(std::string_view xml, std::string_view name,
                                         std::string_view owner, const Outlets& outlets);
};

}  // namespace quorix::uikit
