#include "tools/quorix/gallery/GalleryPage.h"

#include <QBuffer>
#include <QFile>
#include <QImageWriter>
#include <cmath>

#include "tools/quorix/gallery/Pictures.h"

namespace quorix::gallery {
namespace {

std::string pageFile(const char* name) {
  QFile file(QStringLiteral(":/gallery/") + QLatin1String(name));
  return file.open(QIODevice::ReadOnly) ? file.readAll().toStdString() : std::string();
}

std::string escaped(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()))
      .toHtmlEscaped()
      .toStdString();
}

std::string base64PNG(const QImage& picture) {
  QBuffer buffer;
  buffer.open(QIODevice::WriteOnly);
  QImageWriter writer(&buffer, "png");
  writer.setCompression(100);
  writer.write(withFewColors(picture));
  return buffer.data().toBase64().toStdString();
}

std::string attribute(std::string_view name, std::string_view value) {
  return ' ' + std::string(name) + "=\"" + escaped(value) + '"';
}

std::string folded(std::string_view summary, std::string_view text) {
  return "<details><summary>" + std::string(summary) + "</summary><pre dir=\"auto\">" +
         escaped(text) + "</pre></details>";
}

template <class Table>
std::string select(std::string_view label, std::string_view name, const Table& table) {
  std::string html = "<label>" + std::string(label) + " <select" + attribute("name", name) +
                     "><option value=\"\">all</option>";
  for (const auto& choice : table) {
    html += "<option" + attribute("value", choice.name) + '>' + escaped(choice.title) + "</option>";
  }
  return html + "</select></label>\n";
}

std::string filters() {
  return "<form hidden><div>\n" + select("Language", "language", languages) +
         select("Widget", "widget", widgets) + select("Appearance", "appearance", appearances) +
         select("Text", "size", textSizes) + select("Direction", "reading", readings) +
         select("Width", "width", screens) + "<output></output></div></form>\n";
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

std::string GalleryPage::Section::id() const {
  return std::string(language->name) + '-' + std::string(widget->name);
}

std::size_t GalleryPage::ruleFor(const QImage& picture) {
  const auto [known, isNew] = rules_.try_emplace(base64PNG(picture), rules_.size());
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

void GalleryPage::add(const Cell& cell, const QImage& picture, const std::string& tree,
                      const std::string& spoken) {
  ++cells_;
  const bool goesOn = !sections_.empty() && sections_.back().language == cell.language &&
                      sections_.back().widget == cell.widget;
  if (!goesOn) sections_.push_back({cell.language, cell.widget, tree, {}});
  Section& section = sections_.back();
  const std::string rule = std::to_string(ruleFor(picture));
  const std::string caption = escaped(captionOf(cell));
  section.figures +=
      "<figure" + attribute("id", cell.id()) + attribute("data-language", cell.language->name) +
      attribute("data-widget", cell.widget->name) +
      attribute("data-appearance", cell.appearance->name) +
      attribute("data-size", cell.textSize->name) + attribute("data-reading", cell.reading->name) +
      attribute("data-width", cell.screen->name) + "><div class=\"p p" + rule +
      "\" role=\"img\" aria-label=\"" + caption + "\"></div>\n<figcaption><a href=\"#" + cell.id() +
      "\">" + caption + "</a></figcaption>" + folded("What is spoken", spoken) +
      // The trees of imperative views contain frames, so they differ from cell to cell.
      (tree == section.tree ? "" : folded("View tree", tree)) + "</figure>\n";
}

std::string GalleryPage::contents() const {
  std::string html = "<nav>\n";
  const Choice<Language>* language = nullptr;
  for (const Section& section : sections_) {
    if (section.language != language) {
      html += std::string(language ? "</span>\n" : "") + "<b" +
              attribute("lang", section.language->name) + '>' + escaped(section.language->title) +
              "</b><span>";
    }
    language = section.language;
    html += "<a href=\"#" + section.id() + "\">" + escaped(section.widget->title) + "</a> ";
  }
  return html + (language ? "</span>" : "") + "</nav>\n";
}

std::string GalleryPage::html() const {
  std::string html =
      "<!doctype html>\n<html lang=\"en\">\n<meta charset=\"utf-8\">\n"
      "<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">\n"
      "<title>QuorixWidgets: every screen</title>\n<style>\n" +
      pageFile("gallery.css") + style_ + "</style>\n<header>\n<h1>Every screen</h1>\n<p>" +
      std::to_string(cells_) +
      " screens of the widgets: language, text size, appearance, direction and width. The texts "
      "are in a host's faces, which follow the user's text size; the sums are long on purpose."
      "</p>\n" +
      contents() + "</header>\n" + filters() + "<main>\n";
  for (const Section& section : sections_) {
    html += "<section" + attribute("id", section.id()) + "><h2><span" +
            attribute("lang", section.language->name) + '>' + escaped(section.language->title) +
            "</span> · " + escaped(section.widget->title) + "</h2>\n" +
            folded("View tree", section.tree) + "\n<div class=\"cells\">\n" + section.figures +
            "</div></section>\n";
  }
  return html + "</main>\n<footer>Made by <code>quorix gallery</code>, from local assets alone." +
         "</footer>\n<script>\n" + pageFile("gallery.js") + "</script>\n</html>\n";
}

}  // namespace quorix::gallery
