#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include "Tool.h"

using testing::AllOf;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

namespace {

const QStringList imperative{"--form", "imperative"};

class ToolInfo : public testing::Test {
 protected:
  /// What it prints when all goes well.
  std::string print(const QStringList& words) const {
    const Tool::Run run = tool_.run(QStringList{"info"} + words);
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.err, "");
    return run.out;
  }
  QImage picture(const QStringList& words) const {
    const QString file = tool_.path("picture.png");
    EXPECT_EQ(print(words + QStringList{"--out", file}), "");
    return QImage(file);
  }

  Tool tool_;
};

TEST_F(ToolInfo, SaysWhatAShopperHears) {
  EXPECT_THAT(print({"--locale", "es"}),
              AllOf(StartsWith("button 16 16 343 "), HasSubstr("Quien devuelve menos del 20"),
                    HasSubstr("\"Más información\" acts\n")));
  // The title comes with the first turn of the main queue; only the link is touched.
  EXPECT_THAT(print(imperative), AllOf(StartsWith("text 16 16 343 "), HasSubstr("20%"),
                                       HasSubstr("link 16 "), HasSubstr("\"Read more\" acts\n")));
}

TEST_F(ToolInfo, PrintsTheTreeOfEitherForm) {
  EXPECT_THAT(print({"--tree", "--border", "--background-color", "#FAF7F0"}),
              AllOf(StartsWith("InfoWidgetView\n  Conditional(true)\n"), HasSubstr(".border("),
                    HasSubstr(".background(#FAF7F0FF)"), HasSubstr("Image(\"poweredBy\")")));
  const std::string tree = print(imperative + QStringList{"--tree", "--width", "300"});
  EXPECT_THAT(tree, AllOf(StartsWith("UIInfoWidget 0 0 300 "),
                          HasSubstr(".constraint(UIView[0].bottom = UIInfoWidget.bottom)"),
                          HasSubstr("\"Read more\" link taps\n"), Not(HasSubstr("WKWebView"))));
}

TEST_F(ToolInfo, OpensTheOverlayOfEitherForm) {
  const QStringList words{"--sheet", "--frames", "--accessibility", "--width", "200"};
  EXPECT_THAT(print(words), AllOf(HasSubstr("embed 0 10 200 390 "), HasSubstr("hit 152 10 48 56\n"),
                                  Not(HasSubstr("\"Read more\" acts"))));
  EXPECT_THAT(print(words + imperative + QStringList{"--tree"}),
              AllOf(HasSubstr("WKWebView 0 0 200 390"), HasSubstr("hit 152 20 48 48\n"),
                    HasSubstr("\nbutton 152 20 48 48 ")));
}

TEST_F(ToolInfo, PrintsJSON) {
  for (const QStringList& form : {QStringList{}, imperative}) {
    const std::string text = print(form + QStringList{"--json", "--frames", "--accessibility"});
    const auto document = QJsonDocument::fromJson(QByteArray::fromStdString(text)).object();
    EXPECT_EQ(document["frames"]["size"]["width"].toDouble(), 375);
    EXPECT_EQ(document["accessibility"].toArray().size(), 2);
  }
}

TEST_F(ToolInfo, PaintsWhatItIsTold) {
  const QImage plain = picture({"--width", "300", "--scale", "2"});
  EXPECT_EQ(plain.width(), 600);
  const QImage light = picture({"--background-color", "#FAF7F0", "--border"});
  EXPECT_EQ(light.pixelColor(5, 5).name().toStdString(), "#faf7f0");
  EXPECT_NE(light.pixelColor(0, 5), light.pixelColor(5, 5));
  const QColor day = picture(imperative).pixelColor(5, 5);
  EXPECT_NE(picture(imperative + QStringList{"--appearance", "dark"}).pixelColor(5, 5), day);
}

}  // namespace
