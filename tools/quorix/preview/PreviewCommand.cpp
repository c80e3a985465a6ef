#include "tools/quorix/Commands.h"

#include <QApplication>
#include <utility>

#include "QuorixWidgets/localization/ResourceBundle.h"
#include "qt/Engine.h"
#include "tools/quorix/Application.h"
#include "tools/quorix/Translations.h"
#include "tools/quorix/preview/Preview.h"
#include "tools/quorix/preview/PreviewChoices.h"

namespace quorix::tool {
namespace {

using foundation::Bundle;

std::optional<Failure> layResources(const std::optional<std::string>& folder) {
  if (!folder) return std::nullopt;
  Bundle::Ref theme = Bundle::open(*folder);
  if (!theme) return Failure::refused("can't read the folder " + *folder);
  setTheme(std::move(theme));
  return std::nullopt;
}

Outcome preview(const Arguments& arguments) {
  auto read = PreviewChoices::read(arguments);
  if (const auto* failure = std::get_if<Failure>(&read)) return *failure;
  auto& choices = std::get<PreviewChoices>(read);
  if (const auto failure = layResources(choices.resources)) return *failure;
  if (choices.translations) {
    const auto document = readTranslations(*choices.translations);
    if (const auto* failure = std::get_if<Failure>(&document)) return *failure;
  }

  keepQtQuiet();
  QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
  char name[] = "quorix";
  char* argv[] = {name, nullptr};
  int argc = 1;
  QApplication application(argc, argv);
  qt::installEngine();
  if (const auto failure = choices.findFaces()) return *failure;
  Preview window(choices);
  window.open();
  QApplication::exec();
  return std::string();
}

}  // namespace

const Command previewCommand{
    .name = "preview",
    .purpose =
        "Opens a window on a widget, with controls, and follows files as they change.\n"
        "Texts are not fetched: they are the built-in ones or those of a file.",
    .options = PreviewChoices::options,
    .operand = {"[TOKEN]", "",
                "A shopper of your own beside the ones offered, or - to read it from the standard "
                "input."},
    .details = {},
    .example = "quorix preview --locale es --resources QuorixWidgets/resources",
    .run = preview,
};

}  // namespace quorix::tool
