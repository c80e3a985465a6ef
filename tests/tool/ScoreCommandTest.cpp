#include <gtest/gtest.h>

#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include "Tool.h"

namespace {

TEST(ToolScore, PrintsJSON) {
  const auto run =
      Tool().shell("quorix score --token $(quorix mint) --json --frames --accessibility --sheet");
  EXPECT_EQ(run.status, 0);
  const auto document = QJsonDocument::fromJson(QByteArray::fromStdString(run.out)).object();
  EXPECT_EQ(document["frames"]["size"]["height"].toDouble(), 750);
  EXPECT_GT(document["frames"]["items"].toArray().size(), 10);
  EXPECT_EQ(document["accessibility"][0]["label"].toString(), "YOUR RETURN FEE");
}

TEST(ToolScore, PicturesHaveThePixelsAskedFor) {
  const Tool tool;
  const struct {
    std::string words;
    int width, height;  // a height of 0 is what the row needs
  } rows[] = {
      {"--width 320 --scale 3", 960, 0},
      {"--width 100.5 --scale 2 --height 20.25", 201, 41},
      {"--sheet --width 200", 200, 400},
      {"--sheet --width 200 --height 90 --scale 0.5", 100, 45},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.words);
    const auto run = tool.shell("quorix score --token $(quorix mint) --out row.png " + row.words);
    EXPECT_EQ(run.status, 0) << run.err;
    const QImage image(tool.path("row.png"));
    EXPECT_EQ(image.width(), row.width);
    EXPECT_EQ(image.height(), row.height ? row.height : image.height());
  }
}

}  // namespace
