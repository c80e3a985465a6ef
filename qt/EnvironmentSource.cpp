#include "qt/EnvironmentSource.h"

#include "qt/Desktop.h"

namespace quorix::qt {

swiftui::Environment EnvironmentSource::at(double scale) const {
  return {.appearance = appearance ? *appearance : Desktop::appearance(),
          .direction = direction ? *direction : Desktop::direction(),
          .textSize = textSize,
          .scale = scale,
          .language = Desktop::language()};
}

bool EnvironmentSource::allowsMotion() const {
  return motion ? *motion : !Desktop::prefersReducedMotion();
}

}  // namespace quorix::qt
