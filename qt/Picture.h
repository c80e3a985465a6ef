#pragma once

#include <QImage>

#include "platform/foundation/Export.h"
#include "platform/hosting/StillScene.h"
#include "platform/render/Scene.h"
#include "platform/swiftui/View.h"

class QPainter;

namespace quorix::qt {

/// What a picture of a view is to look like.
using PictureOptions = hosting::StillOptions;

/// Draws `view` once, without a window: for tools, tests and anything that shows a still picture.
/// The image has `environment.scale` pixels for each point, rounded up to whole pixels, and carries
/// that scale as its device pixel ratio. Motion and time play no part: the same view and options
/// give the same picture. The view comes on screen for the length of the call, so its tasks may
/// start.
///
/// Needs a QGuiApplication (the "offscreen" platform will do) and runs on its main thread. The
/// result is null when the size is empty, not finite, or more than an image can hold. With `sheet`,
/// a view without a sheet is drawn as it stands.
///
///     #include <QuorixWidgets/score/ScoreWidgetBuilder.h>
///     auto row = quorix::ScoreWidgetBuilder::buildSwiftUIScoreWidgetView(
///         "my-shop", "en", shopperToken, {std::nullopt, std::nullopt});
///     quorix::qt::PictureOptions options;
///     options.width = 343;
///     options.environment.scale = 3;
///     quorix::qt::picture(row, options).save("row.png");
QUORIX_EXPORT QImage picture(const swiftui::View& view, const PictureOptions& options = {});

/// Draws `scene` over `background` at `scale` device pixels for each point. Null as above.
QUORIX_EXPORT QImage paintPicture(const render::Scene& scene, double scale,
                                  graphics::RGBA background);

/// Paints `scene` into an image, and draws the image at the painter's origin, because Qt blends
/// text differently over existing pixels. Moves the top left corner to the nearest device pixel.
/// Draws directly if the painter rotates or shears, or the scene is larger than
/// `render::mostPixels`.
QUORIX_EXPORT void paintAsPicture(QPainter& painter, const render::Scene& scene);

/// Draws `scene` with the background and the scale of `options`. Null as above.
QUORIX_EXPORT QImage paintPicture(const render::Scene& scene, const PictureOptions& options);

}  // namespace quorix::qt
