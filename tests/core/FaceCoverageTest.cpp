#include <ft2build.h>
#include <gtest/gtest.h>
#include FT_FREETYPE_H

#include <string>
#include <string_view>

#include "platform/foundation/Bundle.h"
#include "platform/graphics/AssetCatalog.h"

namespace quorix {
namespace {

/// What languages of three alphabets write with marks, what currency texts set beside their
/// figures, and what is not seen at all but must not show as a box.
constexpr std::u32string_view kSample =
    U"áàâäãåæçčďéěèëğíîïłñňóöőøřßşșšťțúůüűýžÁÉÍÑÓÖŐØŘŞȘŠÚÜŰÝŽ¿¡„“”’«»–—…"
    U"абвгдеёжзийклмнопрстуфхцчшщъыьэюяґєії№αβγδεζηθικλμνξοπρσςτυφχψωάέήίόύώ"
    U"0123456789+-±%.,'’$"
    U"¢£¤¥€₪₫₴₸₹₺₽₿\u2212\u00A0\u202F\u200E\u200F\u061C\u2066\u2069";

class FaceCoverageTest : public ::testing::TestWithParam<const char*> {};

TEST_P(FaceCoverageTest, WritesTheLanguagesAndCurrenciesOfEurope) {
  const auto data =
      graphics::dataSet(foundation::Bundle::embedded(), "Fonts/" + std::string(GetParam()));
  ASSERT_TRUE(data);
  FT_Library library = nullptr;
  FT_Face face = nullptr;
  ASSERT_EQ(FT_Init_FreeType(&library), 0);
  ASSERT_EQ(FT_New_Memory_Face(library, reinterpret_cast<const FT_Byte*>(data->text().data()),
                               static_cast<FT_Long>(data->size()), 0, &face),
            0);
  for (const char32_t c : kSample) {
    EXPECT_NE(FT_Get_Char_Index(face, c), 0U) << std::hex << static_cast<std::uint32_t>(c);
  }
  FT_Done_FreeType(library);
}

INSTANTIATE_TEST_SUITE_P(Faces, FaceCoverageTest,
                         ::testing::Values("Saans-Regular", "Saans-Medium", "TovaSansLatin-Regular",
                                           "TovaSansLatin-SemiBold"));

}  // namespace
}  // namespace quorix
