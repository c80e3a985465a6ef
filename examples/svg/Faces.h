#pragma once

#include <memory>
#include <string_view>
#include <vector>

#include "Face.h"

namespace quorix::examples {

/// The faces that texts are drawn in: those of the font manager. This renderer knows no system's
/// faces, so a name that is not registered gets the first that is.
class Faces {
 public:
  const Face& find(std::string_view name);

 private:
  std::vector<std::unique_ptr<Face>> loaded_;
};

}  // namespace quorix::examples
