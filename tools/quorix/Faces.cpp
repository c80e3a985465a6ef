#include "tools/quorix/Faces.h"

#include <QFileInfo>

#include "QuorixWidgets/localization/QuorixFont.h"
#include "platform/graphics/FontManager.h"
#include "qt/QtFonts.h"
#include "tools/quorix/InputFile.h"

namespace quorix::tool {
namespace {

using graphics::FontManager;
using graphics::GraphicsFont;

bool looksLikeFile(const QString& text) {
  return text.contains(QLatin1Char('/')) || text.endsWith(QLatin1String(".ttf")) ||
         text.endsWith(QLatin1String(".otf")) || QFileInfo(text).isFile();
}

std::variant<std::string, Failure> registeredFile(const std::string& path) {
  auto bytes = readInputFile(path);
  if (auto* failure = std::get_if<Failure>(&bytes)) return *failure;
  const auto font =
      GraphicsFont::fromData(foundation::Data(std::move(std::get<std::string>(bytes))));
  if (!font) return Failure::refused(path + " is not a font file with one named face");
  const std::string& name = font->postScriptName();
  if (FontManager::shared().registerGraphicsFont(*font)) return name;
  // The same file may be given for both faces.
  if (FontManager::shared().data(name) == font->data()) return name;
  return Failure::refused(path + ": there is a face named \"" + name +
                          "\" already; give that name to use it");
}

}  // namespace

std::variant<std::string, Failure> usableFace(const std::string& nameOrFile) {
  qt::QtFonts::installSystemLookup();
  // Registers the library's own faces first, so that no file takes their names.
  QuorixFont::regular();
  QuorixFont::medium();
  if (looksLikeFile(QString::fromStdString(nameOrFile))) return registeredFile(nameOrFile);
  if (FontManager::shared().knows(nameOrFile)) return nameOrFile;
  return Failure::refused("there is no face named \"" + nameOrFile + '"');
}

}  // namespace quorix::tool
