#include "tools/quorix/Commands.h"

#include <array>
#include <string_view>
#include <utility>

#include "platform/render/ScenePrinter.h"
#include "tools/quorix/Application.h"
#include "tools/quorix/Files.h"
#include "tools/quorix/OptionReader.h"
#include "tools/quorix/Progress.h"
#include "tools/quorix/gallery/CellRenderer.h"
#include "tools/quorix/gallery/ContactSheet.h"
#include "tools/quorix/gallery/FewColors.h"
#include "tools/quorix/gallery/GalleryPage.h"

namespace quorix::tool {
namespace {

using gallery::Cell;

template <class Choice, std::size_t count>
constexpr auto namesOf(const std::array<Choice, count>& table) {
  std::array<std::string_view, count> names;
  for (std::size_t i = 0; i < count; ++i) names[i] = table[i].name;
  return names;
}

constexpr auto languages = namesOf(gallery::languages);
constexpr auto widgets = namesOf(gallery::widgets);
constexpr auto appearances = namesOf(gallery::appearances);
constexpr auto readings = namesOf(gallery::readings);
constexpr auto textSizes = namesOf(gallery::textSizes);
constexpr auto screens = namesOf(gallery::screens);

constexpr auto options = std::to_array<Option>({
    {"--out",
     "FILE",
     "Where to write: a page if the name ends in .html, one large picture if it ends in .png.",
     {},
     true},
    {"--language", "CODE", "Only this language: {} (default all).", languages},
    {"--widget", "NAME", "Only {} (default all).", widgets},
    {"--appearance", "NAME", "Only {} (default both).", appearances},
    {"--text-size", "NAME", "Only {} (default all).", textSizes},
    {"--direction", "NAME", "Only the language's own or the opposite one: {} (default both).",
     readings},
    {"--width", "POINTS", "Only {} (default all).", screens},
    {"--showcase", "", "Only a handful that shows the range."},
    {"--scale", "FACTOR", "Pixels for each point, 0.5 to 4 (default 1)."},
    {"--page-width", "POINTS", "Of a picture, 100 to 20000 (default 1680)."},
});

struct Request {
  std::vector<Cell> cells;
  std::string out;
  bool asPicture = false;
  double scale = 1;
  double pageWidth = 1680;
};

Request readRequest(OptionReader& read) {
  Request request;
  request.out = read.text("--out", {});
  request.asPicture = request.out.ends_with(".png");
  if (!request.asPicture && !request.out.ends_with(".html")) {
    read.fail("--out wants a file that ends in .html or .png, not \"" + request.out + '"');
  }
  const gallery::Selection selection{
      .widget = read.optionalText("--widget"),
      .language = read.optionalText("--language"),
      .appearance = read.optionalText("--appearance"),
      .textSize = read.optionalText("--text-size"),
      .reading = read.optionalText("--direction"),
      .screen = read.optionalText("--width"),
  };
  request.cells = read.has("--showcase") ? gallery::showcase() : gallery::cells(selection);
  request.scale = read.number("--scale", 1, {0.5, 4});
  request.pageWidth = read.number("--page-width", request.pageWidth, {100, 20000});
  return request;
}

Outcome writePage(const Request& request) {
  const gallery::CellRenderer renderer;
  gallery::GalleryPage page;
  Progress progress("gallery", "screens", request.cells.size());
  for (const Cell& cell : request.cells) {
    progress.step();
    const auto shown = renderer.render(cell, request.scale);
    page.add(cell, gallery::picture(shown, request.scale), shown.tree,
             render::printAccessibility(shown.still.topmost()));
  }
  if (auto failure = writeFile(request.out, QByteArray::fromStdString(page.html()))) {
    return *std::move(failure);
  }
  return std::string();
}

Outcome writeSheet(const Request& request) {
  const gallery::CellRenderer renderer;
  std::vector<gallery::ContactSheet::Entry> entries;
  Progress progress("gallery", "screens", request.cells.size());
  for (const Cell& cell : request.cells) {
    progress.step();
    const auto shown = renderer.render(cell, request.scale);
    entries.push_back({gallery::picture(shown, request.scale), cell.id()});
  }
  const QImage sheet = gallery::ContactSheet::paint(entries, request.pageWidth);
  if (sheet.isNull()) return Failure::refused("the picture would be too large: ask for less");
  if (auto failure = writePicture(gallery::withFewColors(sheet), request.out)) {
    return *std::move(failure);
  }
  return std::string();
}

Outcome showGallery(const Arguments& arguments) {
  OptionReader read(arguments);
  const Request request = readRequest(read);
  if (read.failure()) return *read.failure();
  const PictureApplication application;
  return request.asPicture ? writeSheet(request) : writePage(request);
}

}  // namespace

const Command galleryCommand{
    .name = "gallery",
    .purpose =
        "Shows the widgets on every screen: language, text size, direction, width.\n"
        "Nothing is fetched: texts and faces are the built-in ones and the demo shop's.",
    .options = options,
    .operand = {},
    .details =
        "The page holds its pictures and works without a network. Beside each picture stands what "
        "a screen reader meets, in each section the view tree. The text sizes are large, "
        "extraExtraExtraLarge and accessibilityExtraExtraExtraLarge.",
    .example = "quorix gallery --language es --widget row --out gallery.html",
    .run = showGallery,
};

}  // namespace quorix::tool
