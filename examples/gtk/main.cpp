// The widgets in a GTK 4 window: quorix-gtk TOKEN [LANGUAGE]

#include <gtk/gtk.h>

#include <map>

#include "Drawing.h"
#include "QuorixWidgets/info/InfoWidgetBuilder.h"
#include "QuorixWidgets/score/ScoreWidgetBuilder.h"
#include "platform/foundation/MainQueue.h"
#include "platform/hosting/FocusRing.h"
#include "platform/hosting/ViewWindow.h"
#include "platform/uikit/URLOpener.h"

using namespace quorix;

/// A drawing area with a view and its sheets.
struct Surface final : hosting::ViewWindow {
  using Phase = hosting::PointerEvent::Phase;

  GtkWidget* const area = gtk_drawing_area_new();

  Surface(examples::PangoText& texts, swiftui::View view)
      : ViewWindow(texts, {}, std::move(view), {}), texts_(texts) {
    gtk_widget_set_focusable(area, TRUE);
    const auto draw = [](GtkDrawingArea*, cairo_t* to, int width, int height, gpointer self) {
      static_cast<Surface*>(self)->draw(to, {double(width), double(height)});
    };
    gtk_drawing_area_set_draw_func(GTK_DRAWING_AREA(area), draw, this, nullptr);
    GtkEventController* keys = gtk_event_controller_key_new();
    on(keys, "key-pressed", [](Surface* self, guint key) { return gboolean(self->type(key)); });
    gtk_widget_add_controller(area, keys);
    GtkEventController* wheel =
        gtk_event_controller_scroll_new(GTK_EVENT_CONTROLLER_SCROLL_VERTICAL);
    on(wheel, "scroll", [](Surface* self, double, double notches) {
      return gboolean(self->front().handle(hosting::ScrollEvent{60 * notches}));
    });
    gtk_widget_add_controller(area, wheel);
    GtkGesture* drag = gtk_gesture_drag_new();
    on(drag, "drag-begin", [](Surface* self, double x, double y) {
      self->pressed_ = {x, y};
      self->point(Phase::pressed, 0, 0);
    });
    on(drag, "drag-update",
       [](Surface* self, double x, double y) { self->point(Phase::moved, x, y); });
    on(drag, "drag-end",
       [](Surface* self, double x, double y) { self->point(Phase::released, x, y); });
    gtk_widget_add_controller(area, GTK_EVENT_CONTROLLER(drag));
  }

  void on(gpointer source, const char* signal, auto handler) {
    g_signal_connect_swapped(source, signal, G_CALLBACK(+handler), this);
  }

  void point(Phase phase, double right, double down) {
    const double now = double(g_get_monotonic_time()) * 1e-3;
    front().handle({phase, {pressed_.x + right, pressed_.y + down}, now});
  }

  bool type(guint pressed) {
    using enum hosting::Key;
    static const std::map<guint, hosting::Key> keys = {
        {GDK_KEY_Tab, next},        {GDK_KEY_ISO_Left_Tab, previous},
        {GDK_KEY_Return, activate}, {GDK_KEY_space, activate},
        {GDK_KEY_Escape, escape},   {GDK_KEY_Up, up},
        {GDK_KEY_Down, down},       {GDK_KEY_Page_Up, pageUp},
        {GDK_KEY_Home, home},       {GDK_KEY_Page_Down, pageDown},
        {GDK_KEY_End, end}};
    const auto key = keys.find(pressed);
    return handle({key == keys.end() ? other : key->second});
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
    setSettings({environment(), true});
    resize(size, size);
    const gint64 now = g_get_monotonic_time(), rested = now - std::exchange(drawn_, now);
    if (frame(MIN(double(rested) * 1e-6, 0.04))) needsFrame();
    examples::Painter painter{to, texts_};
    painter.paint(view().host().scene(size));
    for (hosting::SheetSession* sheet : sheets()) painter.paint(sheet->presenter().scene());
    using Ring = hosting::FocusRing;
    const auto focused = front().ringFrame();
    if (focused) painter.draw(Ring::line(Ring::around(*focused), painter.appearance));
  }

  /// Draws on a later turn, because a frame may be in progress.
  void needsFrame() override {
    foundation::MainQueue::async([this] { gtk_widget_queue_draw(area); });
  }
  /// Without a web engine, pages open in the browser.
  bool showsPages() const override { return true; }

  examples::PangoText& texts_;
  layout::Point pressed_;
  gint64 drawn_ = 0;  ///< microseconds
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
  examples::PangoText texts;
  Surface surface(texts, row.padding({16, 16, 160, 16}).overlay({}, info.padding(16)));
  GtkWidget* window = gtk_window_new();
  gtk_window_set_default_size(GTK_WINDOW(window), 375, 667);
  gtk_window_set_child(GTK_WINDOW(window), surface.area);
  gtk_window_present(GTK_WINDOW(window));
  do g_main_context_iteration(nullptr, TRUE);
  while (g_list_model_get_n_items(gtk_window_get_toplevels()) > 0);
}
