#include "QuorixWidgets/localization/BuiltInTranslations.h"

namespace quorix {

std::shared_ptr<const TranslationTable> builtInTranslations(std::string_view locale) {
  static const auto english = TranslationTable::make({
      {"returns", "title", "Your return fee"},
      {"returns", "fee", "Return fee"},
      {"returns", "rate", "Return rate"},
      {"returns", "disclaimer",
       "Your return fee is based on your personal return rate. Fewer returns lead to lower fees "
       "benefiting both you and the environment."},
      {"labels", "discounted", "Discounted"},
      {"labels", "original", "Original"},
      {"labels", "hint", "Tap to learn more"},
      {"labels", "quorix_logo", "Quorix logo"},
      {"actions", "close", "Close"},
  });
  static const auto spanish = TranslationTable::make({
      {"returns", "title", "Tu tarifa de devolución"},
      {"returns", "fee", "Tarifa de devolución"},
      {"returns", "rate", "Tasa de devolución"},
      {"returns", "disclaimer",
       "Su tarifa de devolución se basa en su tasa de devolución personal. Menos devoluciones se "
       "traducen en tarifas más bajas, lo que beneficia tanto a usted como al medio ambiente."},
      {"labels", "discounted", "Descontado"},
      {"labels", "original", "Original"},
      {"labels", "hint", "Toque para saber más"},
      {"labels", "quorix_logo", "Logo de Quorix"},
      {"actions", "close", "Cerrar"},
  });
  return locale == "es" ? spanish : english;
}

}  // namespace quorix
