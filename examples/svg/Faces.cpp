#include "Faces.h"

#include <hb-ot.h>
#include <array>
#include <charconv>
#include <stdexcept>
#include <utility>

#include "platform/graphics/FontManager.h"

namespace quorix::examples {
namespace {

void append(std::string& path, char command, std::initializer_list<float> numbers) {
  path += command;
  for (const float number : numbers) {
    std::array<char, 32> digits{};
    const auto end =
        std::to_chars(digits.data(), digits.data() + digits.size(), static_cast<double>(number));
    path.append(digits.data(), end.ptr).push_back(' ');
  }
}

std::string& pathOf(void* data) { return *static_cast<std::string*>(data); }

/// Writes an outline from HarfBuzz as an SVG path.
hb_draw_funcs_t* pathWriter() {
  static hb_draw_funcs_t* const writer = [] {
    hb_draw_funcs_t* funcs = hb_draw_funcs_create();
    hb_draw_funcs_set_move_to_func(
        funcs,
        [](auto*, void* data, auto*, float x, float y, void*) {
          append(pathOf(data), 'M', {x, y});
        },
        nullptr, nullptr);
    hb_draw_funcs_set_line_to_func(
        funcs,
        [](auto*, void* data, auto*, float x, float y, void*) {
          append(pathOf(data), 'L', {x, y});
        },
        nullptr, nullptr);
    hb_draw_funcs_set_quadratic_to_func(
        funcs,
        [](auto*, void* data, auto*, float cx, float cy, float x, float y, void*) {
          append(pathOf(data), 'Q', {cx, cy, x, y});
        },
        nullptr, nullptr);
    hb_draw_funcs_set_cubic_to_func(
        funcs,
        [](auto*, void* data, auto*, float ax, float ay, float bx, float by, float x, float y,
           void*) {
          append(pathOf(data), 'C', {ax, ay, bx, by, x, y});
        },
        nullptr, nullptr);
    hb_draw_funcs_set_close_path_func(
        funcs, [](auto*, void* data, auto*, void*) { append(pathOf(data), 'Z', {}); }, nullptr,
        nullptr);
    return funcs;
  }();
  return writer;
}

}  // namespace

Face::Face(graphics::GraphicsFont font) : font_(std::move(font)) {
  const auto bytes = font_.data().text();
  hb_blob_t* blob = hb_blob_create(bytes.data(), static_cast<unsigned>(bytes.size()),
                                   HB_MEMORY_MODE_READONLY, nullptr, nullptr);
  hb_face_t* face = hb_face_create(blob, 0);
  shaper_.reset(hb_font_create(face));
  unit_ = 1.0 / hb_face_get_upem(face);
  hb_font_extents_t extents{};
  hb_font_get_h_extents(shaper_.get(), &extents);
  ascent_ = extents.ascender * unit_;
  descent_ = -extents.descender * unit_;
  lineGap_ = extents.line_gap * unit_;
  hb_face_destroy(face);
  hb_blob_destroy(blob);
}

Face::Stroke Face::underline() const {
  return stroke(HB_OT_METRICS_TAG_UNDERLINE_OFFSET, HB_OT_METRICS_TAG_UNDERLINE_SIZE, {0.1, 0.05});
}

Face::Stroke Face::strikethrough() const {
  return stroke(HB_OT_METRICS_TAG_STRIKEOUT_OFFSET, HB_OT_METRICS_TAG_STRIKEOUT_SIZE,
                {-0.25, 0.05});
}

Face::Stroke Face::stroke(unsigned offset, unsigned thickness, Stroke otherwise) const {
  hb_position_t top = 0, size = 0;
  const auto get = [this](unsigned tag, hb_position_t& value) {
    return hb_ot_metrics_get_position(shaper_.get(), static_cast<hb_ot_metrics_tag_t>(tag), &value);
  };
  if (!get(offset, top) || !get(thickness, size)) return otherwise;
  return {(size / 2.0 - top) * unit_, size * unit_};
}

std::string Face::outline(hb_codepoint_t glyph) const {
  std::string path;
#if HB_VERSION_ATLEAST(7, 0, 0)
  hb_font_draw_glyph(shaper_.get(), glyph, pathWriter(), &path);
#else
  hb_font_get_glyph_shape(shaper_.get(), glyph, pathWriter(), &path);
#endif
  return path;
}

const Face& Faces::find(std::string_view name) {
  for (const auto& font : graphics::FontManager::shared().faces(loaded_.size())) {
    loaded_.push_back(std::make_unique<Face>(font));
  }
  for (const auto& face : loaded_) {
    if (face->name() == name) return *face;
  }
  if (loaded_.empty()) throw std::runtime_error("no face is registered");
  return *loaded_.front();
}

}  // namespace quorix::examples
