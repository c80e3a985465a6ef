#pragma once

#include <QImage>

#include "platform/render/Scene.h"

namespace quorix::qt {

/// A picture of `scene` on a transparent ground, at `scale` device pixels a point. Null when the
/// scene has no size.
QImage scenePicture(const render::Scene& scene, double scale);

}  // namespace quorix::qt
