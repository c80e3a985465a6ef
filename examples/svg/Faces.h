#pragma once

#include <hb.h>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/graphics/FontManager.h"

namespace quorix::examples {

/// A face of the font manager, loaded by HarfBuzz. All lengths are for a font size of 1 point.
class Face {
 public:
  explicit Face(graphics::GraphicsFont font);

  const std::string& name() const { return font_.postScriptName(); }
  hb_font_t* shaper() const { return shaper_.get(); }
  double ascent() const { return ascent_; }
  double descent() const { return descent_; }
  double lineGap() const { return lineGap_; }

  /// Points for each unit of the face.
  double unit() const { return unit_; }

  /// A decoration: the distance of its middle below the baseline, and its thickness.
  struct Stroke {
    double offset;
    double thickness;
  };
  Stroke underline() const;
  Stroke strikethrough() const;

  /// The glyph's outline as SVG path data, in the face's units, with y upwards.
  std::string outline(hb_codepoint_t glyph) const;

 private:
  struct Release {
    void operator()(hb_font_t* font) const { hb_font_destroy(font); }
  };

  Stroke stroke(unsigned offset, unsigned thickness, Stroke otherwise) const;

  graphics::GraphicsFont font_;  // keeps the bytes alive
  std::unique_ptr<hb_font_t, Release> shaper_;
  double unit_ = 0;
  double ascent_ = 0;
  double descent_ = 0;
  double lineGap_ = 0;
};

/// The faces for drawing: those of the font manager. This renderer has no system faces, so an
/// unknown name selects the first registered face.
class Faces {
 public:
  const Face& find(std::string_view name);

 private:
  std::vector<std::unique_ptr<Face>> loaded_;
};

}  // namespace quorix::examples
