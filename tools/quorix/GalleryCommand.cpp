#include "tools/quorix/GalleryCommand.h"

#include <array>
#include <utility>

#include "platform/render/ScenePrinter.h"
#include "tools/quorix/OptionReader.h"
#include "tools/quorix/OutputFile.h"
#include "tools/quorix/PictureApplication.h"
#include "tools/quorix/gallery/CellRenderer.h"
#include "tools/quorix/gallery/ContactSheet.h"
#include "tools/quorix/gallery/FewColors.h"
#include "tools/quorix/gallery/GalleryPage.h"

namespace quorix::tool {
namespace {

using gallery::Cell;

constexpr Option options[] = {
    {"--out", "FILE",
     "Where to write: a page if the name ends in .html, one large\npicture if it ends in .png."},
    {"--language", "CODE", "Only this language: en, es, de, ar or ja (default all)."},
    {"--widget", "NAME", "Only row, sheet, info, imperative-info or overlay (default\nall)."},
    {"--appearance", "NAME", "Only light or dark (default both)."},
    {"--text-size", "NAME", "Only default, largest or accessibility (default all)."},
    {"--direction", "NAME", "Only the language's own or the opposite (default both)."},
    {"--width", "POINTS", "Only 320, 390 or 768 (default all)."},
    {"--showcase", "", "Only a handful that shows the range."},
    {"--scale", "FACTOR", "Pixels for each point, 0.5 to 4 (default 1)."},
    {"--page-width", "POINTS", "Of a picture, 100 to 20000 (default 1680)."},
};

struct Request {
  std::vector<Cell> cells;
  std::string out;
  bool asPicture = false;
  double scale = 1;
  double pageWidth = 1680;
};

/// What `option` chooses from `table`, which knows the names.
template <class Table>
std::optional<std::string> choice(OptionReader& read, std::string_view option, const Table& table) {
  std::array<std::string_view, std::tuple_size_v<Table>> names;
  for (std::size_t i = 0; i < names.size(); ++i) names[i] = table[i].name;
  const auto index = read.choice(option, names);
  return index ? std::optional<std::string>(names[*index]) : std::nullopt;
}

Request readRequest(OptionReader& read) {
  Request request;
  request.out = read.required("--out");
  request.asPicture = request.out.ends_with(".png");
  if (!request.out.empty() && !request.asPicture && !request.out.ends_with(".html")) {
    read.fail("--out wants a file that ends in .html or .png, not \"" + request.out + '"');
  }
  const gallery::Selection selection{
      .widget = choice(read, "--widget", gallery::widgets),
      .language = choice(read, "--language", gallery::languages),
      .appearance = choice(read, "--appearance", gallery::appearances),
      .textSize = choice(read, "--text-size", gallery::textSizes),
      .reading = choice(read, "--direction", gallery::readings),
      .screen = choice(read, "--width", gallery::screens),
  };
  request.cells = read.has("--showcase") ? gallery::showcase() : gallery::cells(selection);
  request.scale = read.number("--scale", 1, {0.5, 4});
  request.pageWidth = read.number("--page-width", request.pageWidth, {100, 20000});
  return request;
}

Outcome writePage(const Request& request) {
  const gallery::CellRenderer renderer;
  gallery::GalleryPage page;
  for (const Cell& cell : request.cells) {
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
  for (const Cell& cell : request.cells) {
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
    .synopsis = "--out FILE [options]",
    .purpose =
        "Shows the widgets on every screen: language, text size, direction, width.\n"
        "Nothing is fetched: texts and faces are the built-in ones and the demo shop's.",
    .options = options,
    .operand = {},
    .details =
        "The page holds its pictures and works without a network. Beside each picture\n"
        "stands what a screen reader meets, in each section the view tree. Text sizes are\n"
        "large, extraExtraExtraLarge and accessibilityExtraExtraExtraLarge.",
    .example = "quorix gallery --language es --widget row --out gallery.html",
    .run = showGallery,
};

}  // namespace quorix::tool
