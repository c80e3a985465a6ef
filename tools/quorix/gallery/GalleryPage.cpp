#include "tools/quorix/gallery/GalleryPage.h"

#include <QFile>
#include <cmath>

#include "tools/quorix/gallery/Pictures.h"

namespace quorix::gallery {
namespace {

constexpr const char* endOfSection = "</div></section>\n";

std::string pageFile(const char* name) {
  QFile file(QStringLiteral(":/gallery/") + QLatin1String(name));
  return file.open(QIODevice::ReadOnly) ? file.readAll().toStdString() : std::string();
}

std::string escaped(std::string_view text) {
  return QString::fromUtf8(text).toHtmlEscaped().toStdString();
}

std::string attribute(std::string_view name, std::string_view value) {
  return ' ' + std::string(name) + "=\"" + escaped(value) + '"';
}

std::string folded(std::string_view summary, std::string_view text) {
  return "<details><summary>" + std::string(summary) + "</summary><pre dir=\"auto\">" +
         escaped(text) + "</pre></details>";
}

template <class Table>
std::string select(std::string_view label, const Table& table) {
  std::string html = "<label>" + std::string(label) + " <select><option value=\"\">all</option>";
  for (const auto& choice : table) {
    html += "<option" + attribute("value", choice.name) + '>' + escaped(choice.title) + "</option>";
  }
  return html + "</select></label>\n";
}

std::string filters() {
  return "<form hidden><div>\n" + select("Language", languages) + select("Widget", widgets) +
         select("Appearance", appearances) + select("Text", textSizes) +
         select("Direction", readings) + select("Width", screens) +
         "<output></output></div></form>\n";
}

std::string captionOf(const Cell& cell) {
  std::string caption(cell.screen->title);
  for (const std::string_view part :
       {cell.textSize->title, cell.appearance->title, cell.reading->title}) {
    caption += " · ";
    caption += part;
  }
  return caption;
}

}  // namespace

std::size_t GalleryPage::ruleFor(const QImage& picture) {
  const QByteArray file = png(withFewColors(picture), true);
  const auto [known, isNew] = rules_.try_emplace(file.toBase64().toStdString(), rules_.size());
  if (isNew) {
    const QSizeF size = picture.deviceIndependentSize();
    const std::string width = std::to_string(std::lround(size.width()));
    const std::string height = std::to_string(std::lround(size.height()));
    style_ += ".p" + std::to_string(known->second) + "{width:" + width +
              "px;aspect-ratio:" + width + '/' + height +
              ";background-image:url(data:image/png;base64," + known->first + ")}\n";
  }
  return known->second;
}

void GalleryPage::beginSection(const Cell& cell, const std::string& tree) {
  const std::string id = std::string(cell.language->name) + '-' + std::string(cell.widget->name);
  const std::string widget = escaped(cell.widget->title);
  const std::string language =
      attribute("lang", cell.language->name) + '>' + escaped(cell.language->title);
  if (cell.language != language_) {
    contents_ += (language_ ? "</span>\n<b" : "<b") + language + "</b><span>";
  }
  contents_ += "<a href=\"#" + id + "\">" + widget + "</a> ";
  body_ += (widget_ ? std::string(endOfSection) : "") + "<section" + attribute("id", id) +
           "><h2><span" + language + "</span> · " + widget + "</h2>\n" + folded("View tree", tree) +
           "\n<div class=\"cells\">\n";
  language_ = cell.language;
  widget_ = cell.widget;
  tree_ = tree;
}

void GalleryPage::add(const Cell& cell, const QImage& picture, const std::string& tree,
                      const std::string& spoken) {
  if (cell.language != language_ || cell.widget != widget_) beginSection(cell, tree);
  ++cells_;
  const std::string rule = std::to_string(ruleFor(picture));
  const std::string caption = escaped(captionOf(cell)), id = cell.names();
  body_ += "<figure" + attribute("id", id) + attribute("class", cell.names(' ')) +
           "><div class=\"p p" + rule + "\" role=\"img\" aria-label=\"" + caption +
           "\"></div>\n<figcaption><a href=\"#" + id + "\">" + caption + "</a></figcaption>" +
           folded("What is spoken", spoken) +
           // The trees of imperative views contain frames, so they differ from cell to cell.
           (tree == tree_ ? "" : folded("View tree", tree)) + "</figure>\n";
}

std::string GalleryPage::html() const {
  return "<!doctype html>\n<html lang=\"en\">\n<meta charset=\"utf-8\">\n"
         "<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">\n"
         "<title>QuorixWidgets: every screen</title>\n<style>\n" +
         pageFile("gallery.css") + style_ + "</style>\n<header>\n<h1>Every screen</h1>\n<p>" +
         std::to_string(cells_) +
         " screens of the widgets: language, text size, appearance, direction and width. The "
         "texts are in a host's faces, which follow the user's text size; the sums are long on "
         "purpose.</p>\n<nav>\n" +
         contents_ + "</span></nav>\n</header>\n" + filters() + "<main>\n" + body_ + endOfSection +
         "</main>\n<footer>Made by <code>quorix gallery</code>, from local assets alone.</footer>\n"
         "<script>\n" +
         pageFile("gallery.js") + "</script>\n</html>\n";
}

}  // namespace quorix::gallery
