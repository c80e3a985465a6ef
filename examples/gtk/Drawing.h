#pragma once

#include <fontconfig/fontconfig.h>
#include <librsvg/rsvg.h>
#include <pango/pangocairo.h>
#include <pango/pangofc-fontmap.h>

#include <cmath>
#include <map>
#include <memory>
#include <string>

#include "platform/graphics/AssetCatalog.h"
#include "platform/graphics/FontManager.h"
#include "platform/render/Scene.h"
#include "platform/text/TextAnalysis.h"
#include "platform/text/TextEngine.h"

namespace quorix::examples {

/// Lays out texts with Pango. Main thread.
class PangoText final : public text::TextEngine {
 public:
  text::TextMetrics measure(const text::AttributedText& text, double width) override {
    return {sizeOf(lay(text, width).get())};
  }
  double leastWidth(const text::AttributedText& text) override {
    return sizeOf(lay(text, 0, PANGO_WRAP_WORD).get()).width;
  }

  std::shared_ptr<PangoLayout> lay(const text::AttributedText& text, double width,
                                   PangoWrapMode wrap = PANGO_WRAP_WORD_CHAR) {
    constexpr auto rightToLeft = layout::LayoutDirection::rightToLeft;
    const bool fromRight = text.direction == rightToLeft;
    const bool leftwards = text::baseDirection(text) == rightToLeft;
    loadFaces();
    std::string markup;
    for (const text::Run& run : text.runs) markup += markupOf(run);
    pango_context_set_base_dir(context_, leftwards ? PANGO_DIRECTION_RTL : PANGO_DIRECTION_LTR);
    const std::shared_ptr<PangoLayout> layout(pango_layout_new(context_), g_object_unref);
    pango_layout_set_auto_dir(layout.get(), FALSE);
    pango_layout_set_alignment(layout.get(), fromRight ? PANGO_ALIGN_RIGHT : PANGO_ALIGN_LEFT);
    pango_layout_set_wrap(layout.get(), wrap);
    if (std::isfinite(width)) pango_layout_set_width(layout.get(), pango_units_from_double(width));
    pango_layout_set_markup(layout.get(), markup.c_str(), -1);
    return layout;
  }

 private:
  static layout::Size sizeOf(PangoLayout* layout) {
    PangoRectangle lines;
    pango_layout_get_extents(layout, nullptr, &lines);
    return {pango_units_to_double(lines.width), pango_units_to_double(lines.height)};
  }

  std::string markupOf(const text::Run& run) const {
    const auto face = faces_.find(run.font.name);
    const auto& [red, green, blue, alpha] = run.color;
    const std::shared_ptr<char> markup(
        g_markup_printf_escaped(
            "<span font='%s' size='%ld' color='#%02x%02x%02x%02x' underline='%s'>%s</span>",
            (face == faces_.end() ? run.font.name : face->second).c_str(),
            std::lround(run.font.points * PANGO_SCALE * 72 / 96), red, green, blue, alpha,
            run.underline ? "single" : "none", run.text.c_str()),
        g_free);
    return run.strikethrough ? std::string("<s>") + markup.get() + "</s>" : markup.get();
  }

  /// Writes the faces to files, because Fontconfig reads fonts only from files.
  void loadFaces() {
    for (const auto& face : graphics::FontManager::shared().faces(faces_.size())) {
      const std::string path = g_get_user_runtime_dir() + ("/" + face.postScriptName());
      g_file_set_contents(path.c_str(), face.data().text().data(), face.data().size(), nullptr);
      FcConfigAppFontAddFile(nullptr, reinterpret_cast<const FcChar8*>(path.c_str()));
      const FcFontSet* added = FcConfigGetFonts(nullptr, FcSetApplication);
      auto* font = pango_fc_font_description_from_pattern(added->fonts[added->nfont - 1], FALSE);
      faces_[face.postScriptName()] = pango_font_description_to_string(font);
      pango_fc_font_map_config_changed(PANGO_FC_FONT_MAP(pango_cairo_font_map_get_default()));
    }
  }

  PangoContext* context_ = pango_font_map_create_context(pango_cairo_font_map_get_default());
  std::map<std::string, std::string> faces_;  ///< PostScript name to Pango's name
};

/// Draws display lists with Cairo.
struct Painter {
  cairo_t* to;
  PangoText& texts;
  graphics::Appearance appearance = graphics::Appearance::light;

  void paint(const render::Scene& scene) {
    appearance = scene.appearance;
    cairo_save(to);
    for (const auto& item : scene.items) std::visit([this](const auto& it) { draw(it); }, item);
    cairo_restore(to);
  }

  void draw(const render::TextItem& item) {
    cairo_move_to(to, item.frame.left(), item.frame.top());
    pango_cairo_show_layout(to, texts.lay(item.text, item.frame.size.width).get());
  }

  /// `r` and `b` are the radii of the upper and the lower corners.
  void outline(const layout::Rect& frame, double r, double b) {
    cairo_new_path(to);
    cairo_arc(to, frame.left() + r, frame.top() + r, r, G_PI, 1.5 * G_PI);
    cairo_arc(to, frame.right() - r, frame.top() + r, r, 1.5 * G_PI, 2 * G_PI);
    cairo_arc(to, frame.right() - b, frame.bottom() - b, b, 0, 0.5 * G_PI);
    cairo_arc(to, frame.left() + b, frame.bottom() - b, b, 0.5 * G_PI, G_PI);
    cairo_close_path(to);
  }

  void draw(const render::FillItem& item) {
    outline(item.frame, item.topCornerRadius, item.bottomCornerRadius);
    use(item.color);
    cairo_fill(to);
  }

  void draw(const render::ClipItem& item) {
    const auto& [origin, size] = item.frame;
    cairo_rectangle(to, origin.x, origin.y, size.width, size.height);
    cairo_clip(to);
  }

  void draw(const render::StrokeItem& item) {
    const auto& [origin, size] = item.frame;
    const double w = item.width, r = std::max(0.0, item.cornerRadius - w / 2);
    outline({{origin.x + w / 2, origin.y + w / 2}, {size.width - w, size.height - w}}, r, r);
    use(item.color);
    cairo_set_line_width(to, w);
    cairo_stroke(to);
  }

  void draw(const render::ImageItem& item) {
    const auto image = graphics::imageSet(item.bundle, item.name);
    if (!image) return;
    const auto svg = image->svg(appearance).text();
    const auto* bytes = reinterpret_cast<const guint8*>(svg.data());
    RsvgHandle* picture = rsvg_handle_new_from_data(bytes, svg.size(), nullptr);
    const auto& [origin, size] = item.frame;
    const RsvgRectangle frame = {origin.x, origin.y, size.width, size.height};
    cairo_push_group(to);
    if (picture) rsvg_handle_render_document(picture, to, &frame, nullptr);
    g_clear_object(&picture);
    cairo_set_operator(to, CAIRO_OPERATOR_IN);
    use(item.tint);
    if (image->isTemplate) cairo_paint(to);
    cairo_pop_group_to_source(to);
    cairo_paint(to);
  }

  void draw(const render::EmbedItem&) {}  // pages open in the browser

  void use(graphics::RGBA color) {
    cairo_set_source_rgba(to, color.red / 255.0, color.green / 255.0, color.blue / 255.0,
                          color.alpha / 255.0);
  }
};

}  // namespace quorix::examples
