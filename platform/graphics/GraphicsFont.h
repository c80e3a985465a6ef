#pragma once

#include <optional>
#include <string>
#include <utility>

#include "platform/foundation/Data.h"
#include "platform/foundation/Export.h"

namespace quorix::graphics {

/// A font file that is complete and readable. Immutable; any thread.
class QUORIX_EXPORT GraphicsFont {
 public:
  /// The font in `data`: one face in TrueType or OpenType form with outlines and a PostScript name.
  /// Absent for any other data.
  static std::optional<GraphicsFont> fromData(foundation::Data data);

  const std::string& postScriptName() const { return name_; }
  const foundation::Data& data() const { return data_; }

 private:
  GraphicsFont(std::string name, foundation::Data data)
      : name_(std::move(name)), data_(std::move(data)) {}

  std::string name_;
  foundation::Data data_;
};

}  // namespace quorix::graphics
