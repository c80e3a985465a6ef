#include <ft2build.h>
#include <gtest/gtest.h>
#include FT_FREETYPE_H

#include <string>
#include <string_view>

#include "platform/foundation/Bundle.h"
#include "platform/graphics/AssetCatalog.h"

namespace quorix {
namespace {

struct Sample {
  const char* language;
  std::u32string_view text;
};

// Every letter with a mark that the language writes, and what its currency text and prose set
// beside them.
constexpr Sample kSamples[] = {
    {"Albanian", U"ëËçÇ"},
    {"Azerbaijani", U"çÇəƏğĞıİöÖşŞüÜ"},
    {"Belarusian", U"АБВГДЕЁЖЗІЙКЛМНОПРСТУЎФХЦЧШЫЬЭЮЯўі’"},
    {"Bulgarian", U"АБВГДЕЖЗИЙКЛМНОПРСТУФХЦЧШЩЪЬЮЯѝ„“лв."},
    {"Catalan", U"àçèéíïòóúüÀÇÈÉÍÏÒÓÚÜl·lŀĿ"},
    {"Croatian", U"čćđšžČĆĐŠŽ"},
    {"Czech", U"áčďéěíňóřšťúůýžÁČĎÉĚÍŇÓŘŠŤÚŮÝŽ„“Kč"},
    {"Danish", U"æøåÆØÅǻǺǽǼǿǾ»«kr."},
    {"Dutch", U"áéíóúïëĳĲÁÉÍÓÚ€"},
    {"English", U"£1,234.50 — “naïve café”, it’s 5 × 3 ÷ 2 − 1 …"},
    {"Esperanto", U"ĉĝĥĵŝŭĈĜĤĴŜŬ"},
    {"Estonian", U"äõöüšžÄÕÖÜŠŽ"},
    {"Finnish", U"äöåšžÄÖÅŠŽ\u2212 5\u00A0%"},
    {"French", U"àâæçéèêëîïôœùûüÿÀÂÆÇÉÈÊËÎÏÔŒÙÛÜŸ«\u202F1\u202F234\u202F»"},
    {"German", U"äöüßÄÖÜẞ„“‚‘–"},
    {"Greek", U"αάβγδεέζηήθιίϊΐκλμνξοόπρσςτυύϋΰφχψωώΑΆΈΉΊΪΌΎΫΏΩ·;€"},
    {"Hungarian", U"áéíóöőúüűÁÉÍÓÖŐÚÜŰ”„"},
    {"Icelandic", U"áðéíóúýþæöÁÐÉÍÓÚÝÞÆÖ"},
    {"Irish", U"áéíóúÁÉÍÓÚḃċḋḟġṁṗṡṫḂĊḊḞĠṀṖṠṪ"},
    {"Italian", U"àèéìíîòóùúÀÈÉÌÒÙ"},
    {"Latvian", U"āčēģīķļņšūžĀČĒĢĪĶĻŅŠŪŽ"},
    {"Lithuanian", U"ąčęėįšųūžĄČĘĖĮŠŲŪŽ"},
    {"Macedonian", U"ЃѓЅѕЈјЉљЊњЌќЏџѐЀѝЍ"},
    {"Maltese", U"ċġħżĊĠĦŻàèìòù"},
    {"Norwegian", U"æøåÆØÅéóòâôÉ"},
    {"Polish", U"ąćęłńóśźżĄĆĘŁŃÓŚŹŻzł”„"},
    {"Portuguese", U"àáâãçéêíóôõúüÀÁÂÃÇÉÊÍÓÔÕÚªº"},
    {"Romanian", U"ăâîșțĂÂÎȘȚşţŞŢ„”"},
    {"Russian",
     U"абвгдеёжзийклмнопрстуфхцчшщъыьэюяЁЙ№«»₽"},
    {"Sami", U"áčđŋšŧžÁČĐŊŠŦŽǥǧǩǯʒǤǦǨǮƷ"},
    {"Serbian", U"ђјљњћџЂЈЉЊЋЏ"},
    {"Slovak", U"áäčďéíĺľňóôŕšťúýžÁÄČĎÉÍĹĽŇÓÔŔŠŤÚÝŽ"},
    {"Slovenian", U"čšžČŠŽ"},
    {"Spanish", U"áéíñóúü¿¡ÁÉÍÑÓÚÜªº"},
    {"Swedish", U"åäöéÅÄÖÉ\u2212"},
    {"Turkish", U"çğıöşüâîûÇĞİÖŞÜÂÎÛ₺"},
    {"Ukrainian", U"ґєіїҐЄІЇ’ʼ₴"},
    {"Welsh", U"âêîôûŵŷẁẃẅỳÂÊÎÔÛŴŶẀẂẄỲ"},
    {"combining marks",
     U"\u0300\u0301\u0302\u0303\u0304\u0306\u0307\u0308\u030A\u030B\u030C\u0327\u0328"},
    {"invisible",
     U"\u00A0\u202F\u2009\u200B\u200C\u200D\u200E\u200F\u061C\u202A\u202C\u2066\u2069"},
    {"currency",
     U"$¢£¤¥ƒ₠₡₢₣₤₥₦₧₨₩₪₫€₭₮₯₰₱₲₳₴₵₶₷₸₹₺₻₼₽"
     U"₾"
     U"₿"},
    {"figures", U"0123456789+-±%‰.,'’¼½¾¹²³"},
};

class FaceCoverageTest : public ::testing::TestWithParam<const char*> {
 protected:
  void SetUp() override {
    data_ = graphics::dataSet(foundation::Bundle::embedded(), "Fonts/" + std::string(GetParam()));
    ASSERT_TRUE(data_);
    const auto* bytes = reinterpret_cast<const FT_Byte*>(data_->text().data());
    ASSERT_EQ(FT_Init_FreeType(&library_), 0);
    ASSERT_EQ(FT_New_Memory_Face(library_, bytes, static_cast<FT_Long>(data_->size()), 0, &face_),
              0);
  }
  void TearDown() override {
    FT_Done_Face(face_);
    FT_Done_FreeType(library_);
  }
  FT_Pos advance(char32_t c) {
    EXPECT_EQ(FT_Load_Char(face_, c, FT_LOAD_NO_SCALE), 0);
    return face_->glyph->metrics.horiAdvance;
  }

  std::optional<foundation::Data> data_;
  FT_Library library_ = nullptr;
  FT_Face face_ = nullptr;
};

TEST_P(FaceCoverageTest, WritesTheLanguagesAndCurrenciesOfEurope) {
  for (const auto& [language, text] : kSamples) {
    for (const char32_t c : text) {
      EXPECT_NE(FT_Get_Char_Index(face_, c), 0U)
          << language << " U+" << std::hex << static_cast<std::uint32_t>(c);
    }
  }
}

TEST_P(FaceCoverageTest, FormatCharactersTakeNoRoom) {
  for (const char32_t c : {U'\u200E', U'\u200F', U'\u061C', U'\u2068', U'\u2069', U'\u200B'}) {
    EXPECT_EQ(advance(c), 0) << std::hex << static_cast<std::uint32_t>(c);
  }
  EXPECT_GT(advance(U'\u202F'), 0);
  EXPECT_EQ(advance(U'\u2212'), advance(U'+')) << "figures line up whatever their sign";
}

INSTANTIATE_TEST_SUITE_P(Faces, FaceCoverageTest,
                         ::testing::Values("Saans-Regular", "Saans-Medium", "TovaSansLatin-Regular",
                                           "TovaSansLatin-SemiBold"),
                         [](const auto& face) {
                           std::string name = face.param;
                           name.erase(name.find('-'), 1);
                           return name;
                         });

}  // namespace
}  // namespace quorix
