#include <gtest/gtest.h>

#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include "Tool.h"

namespace {

const std::string imperative = " --form imperative";

TEST(ToolInfo, PrintsJSON) {
  for (const std::string& form : {std::string(), imperative}) {
    const auto run = Tool().shell("quorix info --json --frames --accessibility" + form);
    const auto document = QJsonDocument::fromJson(QByteArray::fromStdString(run.out)).object();
    EXPECT_EQ(document["frames"]["size"]["width"].toDouble(), 375);
    EXPECT_EQ(document["accessibility"].toArray().size(), 2);
  }
}

TEST(ToolInfo, PaintsWhatItIsTold) {
  const Tool tool;
  const auto picture = [&](const std::string& words) {
    const auto run = tool.shell("quorix info --out info.png " + words);
    EXPECT_EQ(run.status, 0) << run.err;
    return QImage(tool.path("info.png"));
  };
  EXPECT_EQ(picture("--width 300 --scale 2").width(), 600);
  const QImage own = picture("--background-color '#FAF7F0' --border");
  EXPECT_EQ(own.pixelColor(5, 5).name().toStdString(), "#faf7f0");
  EXPECT_NE(own.pixelColor(0, 5), own.pixelColor(5, 5));
  const QColor day = picture(imperative).pixelColor(5, 5);
  EXPECT_NE(picture(imperative + " --appearance dark").pixelColor(5, 5), day);
}

}  // namespace
