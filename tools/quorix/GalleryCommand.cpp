#include <array>
#include <chrono>
#include <cstdio>
#include <memory>

#ifdef _WIN32
#include <io.h>
#else
#include <unistd.h>
#endif

#include "platform/render/ScenePrinter.h"
#include "tools/quorix/Application.h"
#include "tools/quorix/Commands.h"
#include "tools/quorix/Files.h"
#include "tools/quorix/gallery/CellRendering.h"
#include "tools/quorix/gallery/GalleryPage.h"
#include "tools/quorix/gallery/Pictures.h"

namespace quorix::tool {
namespace {

using namespace std::chrono_literals;

/// Reports the progress on the standard error stream, from the third second on. On a terminal this
/// is one line that is removed at the end, otherwise a new line every two seconds.
class Progress {
 public:
  explicit Progress(std::size_t count) : count_(count) {}
  ~Progress() {
    if (said_ && onTerminal_) std::fputs("\r\033[K", stderr);
  }
  Progress(const Progress&) = delete;
  Progress& operator=(const Progress&) = delete;

  /// The next screen begins.
  void step() {
    ++begun_;
    const auto now = std::chrono::steady_clock::now();
    if (now < next_) return;
    next_ = now + (onTerminal_ ? 200ms : patience);
    said_ = true;
    std::fprintf(stderr, "%squorix: gallery: %zu of %zu screens%s", onTerminal_ ? "\r" : "", begun_,
                 count_, onTerminal_ ? "" : "\n");
  }

 private:
  static constexpr auto patience = 2000ms;  // between lines, and before the first

  static bool isTerminal() {
#ifdef _WIN32
    return _isatty(_fileno(stderr)) != 0;
#else
    return isatty(STDERR_FILENO) != 0;
#endif
  }

  std::size_t count_, begun_ = 0;
  bool onTerminal_ = isTerminal(), said_ = false;
  std::chrono::steady_clock::time_point next_ = std::chrono::steady_clock::now() + patience;
};

/// The names in one of the tables of the matrix.
template <const auto& table>
constexpr auto namesOf = [] {
  std::array<std::string_view, table.size()> names;
  for (std::size_t i = 0; i < table.size(); ++i) names[i] = table[i].name;
  return names;
}();

struct Request {
  std::string out;
  gallery::Selection selection;
  bool showcase = false;
  double scale = 1;
  double pageWidth = 1680;
};

Outcome showGallery(const Request& request) {
  const bool asPicture = request.out.ends_with(".png");
  if (!asPicture && !request.out.ends_with(".html")) {
    return Failure::usage("--out wants a file that ends in .html or .png, not \"" + request.out +
                          '"');
  }
  const auto application = startApplication();
  const auto cells = request.showcase ? gallery::showcase() : gallery::cells(request.selection);
  gallery::GalleryPage page;
  std::vector<gallery::CaptionedPicture> pictures;
  Progress progress(cells.size());
  for (const gallery::Cell& cell : cells) {
    progress.step();
    const auto shown = gallery::render(cell, request.scale);
    QImage picture = gallery::picture(shown, request.scale);
    if (asPicture) {
      pictures.push_back({std::move(picture), cell.names()});
    } else {
      page.add(cell, picture, shown.tree, render::printAccessibility(shown.still.topmost()));
    }
  }
  std::optional<Failure> failure;
  if (!asPicture) {
    failure = writeFile(request.out, QByteArray::fromStdString(page.html()));
  } else if (const QImage sheet = gallery::contactSheet(pictures, request.pageWidth);
             !sheet.isNull()) {
    failure = writeFile(request.out, gallery::png(gallery::withFewColors(sheet)));
  } else {
    failure = Failure::refused("the picture would be too large: ask for less");
  }
  if (failure) return *std::move(failure);
  return std::string();
}

}  // namespace

Command galleryCommand() {
  const auto request = std::make_shared<Request>();
  gallery::Selection& only = request->selection;
  return {
      .name = "gallery",
      .purpose =
          "Shows the widgets on every screen: language, text size, direction, width.\n"
          "Nothing is fetched: texts and faces are the built-in ones and the demo shop's.",
      .options =
          {
              {"--out",
               "FILE",
               "Where to write: a page if the name ends in .html, one large picture if it ends in "
               ".png.",
               &request->out,
               {},
               true},
              {"--language", "CODE", "Only this language: {} (default all).", &only.language,
               oneOf(namesOf<gallery::languages>)},
              {"--widget", "NAME", "Only {} (default all).", &only.widget,
               oneOf(namesOf<gallery::widgets>)},
              {"--appearance", "NAME", "Only {} (default both).", &only.appearance,
               oneOf(namesOf<gallery::appearances>)},
              {"--text-size", "NAME", "Only {} (default all).", &only.textSize,
               oneOf(namesOf<gallery::textSizes>)},
              {"--direction", "NAME",
               "Only the language's own or the opposite one: {} (default both).", &only.reading,
               oneOf(namesOf<gallery::readings>)},
              {"--width", "POINTS", "Only {} (default all).", &only.screen,
               oneOf(namesOf<gallery::screens>)},
              {"--showcase", "", "Only a handful that shows the range.", &request->showcase},
              {"--scale", "FACTOR", "Pixels for each point, {} (default 1).", &request->scale,
               between(0.5, 4)},
              {"--page-width", "POINTS", "Of a picture, {} (default 1680).", &request->pageWidth,
               between(100, 20000)},
          },
      .details =
          "The page holds its pictures and works without a network. Beside each picture stands "
          "what a screen reader meets, in each section the view tree. The text sizes are large, "
          "extraExtraExtraLarge and accessibilityExtraExtraExtraLarge.",
      .example = "quorix gallery --language es --widget row --out gallery.html",
      .run = [request] { return showGallery(*request); },
  };
}

}  // namespace quorix::tool
