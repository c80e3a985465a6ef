#include "platform/graphics/FontManager.h"

#include <gtest/gtest.h>

#include <atomic>
#include <thread>

#include "platform/foundation/Bundle.h"
#include "platform/graphics/AssetCatalog.h"

namespace quorix::graphics {
namespace {

using foundation::Data;

Data face(std::string_view name) {
  return dataSet(foundation::Bundle::embedded(), "Fonts/" + std::string(name)).value();
}

GraphicsFont font(std::string_view name) { return GraphicsFont::fromData(face(name)).value(); }

TEST(GraphicsFont, RefusesWhatIsNotAWholeFontFile) {
  for (const char* name : {"Saans-Regular", "TovaSansLatin-Regular"}) {
    const std::string good(face(name).text());
    EXPECT_EQ(GraphicsFont::fromData(Data(good)).value().postScriptName(), name);
    for (const std::size_t length : {std::size_t{0}, std::size_t{3}, std::size_t{12},
                                     std::size_t{200}, good.size() / 2, good.size() - 8}) {
      EXPECT_FALSE(GraphicsFont::fromData(Data(good.substr(0, length)))) << name << ' ' << length;
    }
    std::string damaged = good;
    damaged.replace(4, 2, "\xFF\xFF");  // more tables than the file can hold
    EXPECT_FALSE(GraphicsFont::fromData(Data(damaged)));
  }
}

TEST(FontManager, RefusesANameThatIsTaken) {
  FontManager manager;
  EXPECT_FALSE(manager.knows("Saans-Regular"));
  EXPECT_TRUE(manager.registerGraphicsFont(font("Saans-Regular")));
  EXPECT_FALSE(manager.registerGraphicsFont(font("Saans-Regular")));
  EXPECT_TRUE(manager.knows("Saans-Regular"));
  EXPECT_EQ(manager.data("Saans-Regular"), face("Saans-Regular"));

  manager.setSystemLookup([](std::string_view name) { return name == "Saans-Medium"; });
  EXPECT_TRUE(manager.knows("Saans-Medium"));
  EXPECT_FALSE(manager.registerGraphicsFont(font("Saans-Medium")));
}

TEST(ConcurrentFontManager, OneOfManyRegistersAFace) {
  FontManager manager;
  manager.setSystemLookup([](std::string_view) { return false; });
  std::atomic<int> added = 0;
  std::vector<std::thread> threads;
  for (int i = 0; i < 8; ++i) {
    threads.emplace_back([&] {
      if (manager.registerGraphicsFont(font("Saans-Regular"))) ++added;
      EXPECT_TRUE(manager.knows("Saans-Regular"));
      EXPECT_EQ(manager.faces().size(), manager.generation());
    });
  }
  for (auto& thread : threads) thread.join();
  EXPECT_EQ(added, 1);
}

}  // namespace
}  // namespace quorix::graphics
