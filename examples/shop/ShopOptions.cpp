#include "examples/shop/ShopOptions.h"

#include <algorithm>
#include <string_view>

#include "examples/shop/Choices.h"

namespace quorix::examples {

const char* ShopOptions::usage() {
  return "Usage: quorix-shop [--widgets | --pictures] [--language CODE] [--out DIR]\n"
         "\n"
         "A small shop with the score row and the info widget where a real shop would have them.\n"
         "The bar on top switches shopper, language, appearance and text while it runs.\n"
         "\n"
         "  --widgets         open a Qt Widgets window of the shop beside the Qt Quick one\n"
         "  --language CODE   open it in another language: en, es, de, ar, fr or ja\n"
         "  --pictures        write the shop's scenes as pictures instead of opening a window\n"
         "                    (also what happens where there is no display)\n"
         "  --out DIR         where pictures go, \"out\" by default; asks for pictures\n"
         "  --help            show this text\n";
}

std::variant<ShopOptions, std::string> ShopOptions::parse(std::span<char* const> arguments) {
  ShopOptions options;
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    const std::string_view argument = arguments[i];
    if (argument == "--help" || argument == "-h") {
      options.help = true;
    } else if (argument == "--widgets") {
      options.widgets = true;
    } else if (argument == "--pictures") {
      options.pictures = true;
    } else if (argument == "--out") {
      if (++i == arguments.size() || *arguments[i] == '\0') return "--out needs a folder";
      options.pictures = true;
      options.outFolder = arguments[i];
    } else if (argument == "--language") {
      const auto& all = ShopLanguage::all();
      const auto chosen = std::find_if(all.begin(), all.end(), [&](const ShopLanguage& language) {
        return i + 1 < arguments.size() && language.code == QLatin1String(arguments[i + 1]);
      });
      if (chosen == all.end()) return "--language needs one that the shop speaks (see --help)";
      options.language = static_cast<int>(chosen - all.begin());
      ++i;
    } else {
      return "unknown option " + std::string(argument) + " (see --help)";
    }
  }
  return options;
}

}  // namespace quorix::examples
