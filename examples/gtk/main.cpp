// The widgets in a GTK 4 window: quorix-gtk TOKEN [LANGUAGE]

#include <gtk/gtk.h>

#include <optional>

#include "Drawing.h"
#include "QuorixWidgets/info/InfoWidgetBuilder.h"
#include "QuorixWidgets/score/ScoreWidgetBuilder.h"
#include "platform/foundation/MainQueue.h"
#include "platform/hosting/SheetPresenter.h"
#include "platform/hosting/ViewHost.h"
#include "platform/uikit/URLOpener.h"
#include "platform/webkit/WebContent.h"

using namespace quorix;

/// A widget that shows a view and, above it, the view's sheet.
struct Surface final : hosting::ViewHost::Client, hosting::SheetPresenter::Client {
  GtkWidget* const area = gtk_drawing_area_new();

  explicit Surface(swiftui::View view) {
    host_.setRoot(std::move(view));
    gtk_widget_set_focusable(area, TRUE);
    const auto draw = [](GtkDrawingArea*, cairo_t* to, int width, int height, gpointer self) {
      static_cast<Surface*>(self)->draw(to, {double(width), double(height)});
    };
    gtk_drawing_area_set_draw_func(GTK_DRAWING_AREA(area), draw, this, nullptr);
    on(area, "map", [](Surface* self) { self->host_.setOnScreen(true); });
    on(area, "unmap", [](Surface* self) { self->host_.setOnScreen(false); });
    GtkEventController* keys = gtk_event_controller_key_new();
    on(keys, "key-pressed", [](Surface* self, guint key) { return gboolean(self->type(key)); });
    gtk_widget_add_controller(area, keys);
    GtkGesture* drag = gtk_gesture_drag_new();
    on(drag, "drag-begin", [](Surface* self, double x, double y) {
      self->pressed_ = {x, y};
      self->sheet_ ? self->sheet_->pointerPressed({x, y})
                   : void(self->host_.pointerPressed({x, y}));
    });
    on(drag, "drag-update", [](Surface* self, double x, double y) { self->move(x, y, false); });
    on(drag, "drag-end", [](Surface* self, double x, double y) { self->move(x, y, true); });
    gtk_widget_add_controller(area, GTK_EVENT_CONTROLLER(drag));
  }

  void on(gpointer source, const char* signal, auto handler) {
    g_signal_connect_swapped(source, signal, G_CALLBACK(+handler), this);
  }

  void move(double right, double down, bool ends) {
    const layout::Point at = {pressed_.x + right, pressed_.y + down};
    if (!sheet_) return void(ends && host_.pointerReleased(at));
    ends ? sheet_->pointerReleased(at, 0) : sheet_->pointerMoved(at);
  }

  bool type(guint key) {
    const bool tab = key == GDK_KEY_Tab, back = key == GDK_KEY_ISO_Left_Tab;
    const bool acts = key == GDK_KEY_Return || key == GDK_KEY_space;
    gtk_widget_queue_draw(area);
    if (tab || back) return sheet_ ? sheet_->moveFocus(tab) : host_.moveFocus(tab);
    if (acts) return sheet_ ? sheet_->activateFocus() : host_.activateFocus();
    if (key == GDK_KEY_Escape && sheet_) sheet_->dismiss();
    return sheet_.has_value();
  }

  swiftui::Environment environment() const {
    GdkRGBA text;  // light on a dark page
    gtk_style_context_get_color(gtk_widget_get_style_context(area), &text);
    const bool mirrored = gtk_widget_get_direction(area) == GTK_TEXT_DIR_RTL;
    using enum layout::LayoutDirection;
    return {
        .appearance = text.red > 0.5F ? graphics::Appearance::dark : graphics::Appearance::light,
        .direction = mirrored ? rightToLeft : leftToRight,
        .scale = double(gtk_widget_get_scale_factor(area)),
        .language = pango_language_to_string(gtk_get_default_language())};
  }

  void draw(cairo_t* to, layout::Size size) {
    examples::Painter painter{to, texts_};
    host_.setEnvironment(environment());
    painter.paint(host_.scene(size));
    auto ring = host_.focusFrame();
    if (sheet_) {
      sheet_->setEnvironment(environment());
      if (size != std::exchange(size_, size)) sheet_->setWindow(size, {});
      painter.paint(sheet_->scene());
      ring = sheet_->ringFrame();
      if (sheet_->isMoving()) foundation::MainQueue::async([this] { advance(); });
    }
    if (ring) painter.draw(render::StrokeItem{*ring, {53, 132, 228, 255}, 2});
  }

  /// Moves the sheet on to where it is in the next frame.
  void advance() {
    const gint64 now = g_get_monotonic_time(), rested = now - std::exchange(advanced_, now);
    if (sheet_) sheet_->advance(MIN(double(rested) * 1e-6, 0.04));
  }

  void viewNeedsDisplay() override { gtk_widget_queue_draw(area); }
  void sheetNeedsDisplay() override { gtk_widget_queue_draw(area); }
  void sheetDidClose() override { sheet_.reset(); }
  void presentationChanged() override {
    foundation::MainQueue::async([this] { follow(host_.presentation()); });
  }

  void follow(const swiftui::Presentation* presentation) {
    if (!presentation) return sheet_ ? sheet_->retract() : void();
    if (sheet_) return sheet_->present(*presentation);
    sheet_.emplace(texts_, *this);
    sheet_->setEnvironment(environment());
    sheet_->setWindow(size_, {});
    sheet_->present(*presentation);
    for (const render::Item& item : sheet_->panel().items) {
      const auto* room = std::get_if<render::EmbedItem>(&item);
      const auto* page = room ? dynamic_cast<webkit::WebContent*>(room->content.get()) : nullptr;
      if (page && uikit::URLOpener::openOutside(page->url().value())) return sheet_->dismiss();
    }
  }

  examples::PangoText texts_;
  hosting::ViewHost host_{texts_, *this};
  std::optional<hosting::SheetPresenter> sheet_;
  layout::Size size_;
  layout::Point pressed_;
  gint64 advanced_ = 0;  ///< microseconds
};

struct Browser final : uikit::URLOpener {
  void open(const foundation::URL& url) override {
    g_app_info_launch_default_for_uri(url.absoluteString().c_str(), nullptr, nullptr);
  }
};

int main(int argc, char** argv) {
  const std::string token = argc > 1 ? argv[1] : "", language = argc > 2 ? argv[2] : "en";
  gtk_init();
  if (language == "ar") gtk_widget_set_default_direction(GTK_TEXT_DIR_RTL);
  uikit::URLOpener::install(std::make_shared<Browser>());
  using Work = foundation::MainQueue::Work;
  foundation::MainQueue::install([](Work work) {
    const auto run = [](gpointer data) { (*std::unique_ptr<Work>(static_cast<Work*>(data)))(); };
    g_idle_add_once(run, new Work(std::move(work)));
  });
  auto row = ScoreWidgetBuilder::buildSwiftUIScoreWidgetView("gtk", language, token, {{}, {}});
  auto info = InfoWidgetBuilder::buildSwiftUIInfoWidgetView(language, {{}, {}, {}, true});
  Surface surface(row.padding({16, 16, 160, 16}).overlay({}, info.padding(16)));
  GtkWidget* window = gtk_window_new();
  gtk_window_set_default_size(GTK_WINDOW(window), 375, 667);
  gtk_window_set_child(GTK_WINDOW(window), surface.area);
  gtk_window_present(GTK_WINDOW(window));
  do g_main_context_iteration(nullptr, TRUE);
  while (g_list_model_get_n_items(gtk_window_get_toplevels()) > 0);
}
