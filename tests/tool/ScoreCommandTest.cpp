#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QFile>
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

const QString tovaFile =
    QStringLiteral(FONTS "/TovaSansLatin-SemiBold.dataset/TovaSansLatin-SemiBold.ttf");

class ToolScore : public testing::Test {
 protected:
  Tool::Run score(const QStringList& words) const {
    return tool_.run(QStringList{"score", "--token", token_} + words);
  }
  /// What it prints when all goes well.
  std::string print(const QStringList& words) const {
    const Tool::Run run = score(words);
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
  QString token_ = QString::fromStdString(tool_.mint());
};

TEST_F(ToolScore, SaysWhatAShopperHears) {
  EXPECT_THAT(print({"--width", "300"}), StartsWith("button 0 0 300 "));
  EXPECT_THAT(print({}), HasSubstr("\"Your return fee Discounted €3.00, Original €6.00\" hint "
                                   "\"Tap to learn more\" acts\n"));
  EXPECT_THAT(print({"--locale", "es"}), HasSubstr("\"Tu tarifa de devolución Descontado"));
  EXPECT_THAT(print({"--sheet"}), AllOf(HasSubstr("\"Close\" acts"), HasSubstr("Return rate 18%"),
                                        Not(HasSubstr("Tap to learn more"))));
}

TEST_F(ToolScore, PrintsJSON) {
  const std::string text = print({"--json", "--frames", "--accessibility", "--sheet"});
  const auto document = QJsonDocument::fromJson(QByteArray::fromStdString(text)).object();
  EXPECT_EQ(document["frames"]["size"]["height"].toDouble(), 750);
  EXPECT_GT(document["frames"]["items"].toArray().size(), 10);
  EXPECT_EQ(document["accessibility"][0]["label"].toString(), "YOUR RETURN FEE");
}

struct Picture {
  QStringList words;
  QSize size;  // a height of 0 is what the row needs
};

TEST_F(ToolScore, PicturesHaveThePixelsAskedFor) {
  const Picture pictures[] = {
      {{"--width", "320", "--scale", "3"}, {960, 0}},
      {{"--width", "100.5", "--scale", "2", "--height", "20.25"}, {201, 41}},
      {{"--sheet", "--width", "200"}, {200, 400}},
      {{"--sheet", "--width", "200", "--height", "90", "--scale", "0.5"}, {100, 45}},
  };
  for (const Picture& expected : pictures) {
    SCOPED_TRACE(expected.words.join(' ').toStdString());
    const QImage image = picture(expected.words);
    EXPECT_EQ(image.width(), expected.size.width());
    const bool heightIsOpen = expected.size.height() == 0;
    EXPECT_EQ(image.height(), heightIsOpen ? image.height() : expected.size.height());
  }
}

TEST_F(ToolScore, MirrorsTheRowOfAScriptThatRunsTheOtherWay) {
  EXPECT_THAT(print({"--frames"}), StartsWith("text 0 0 "));
  EXPECT_THAT(print({"--frames", "--locale", "he"}), Not(StartsWith("text 0 0 ")));
  EXPECT_THAT(print({"--frames", "--direction", "rtl"}), Not(StartsWith("text 0 0 ")));
}

TEST_F(ToolScore, TakesFacesFromFilesAndLetsThemGrow) {
  const QStringList faces{"--frames", "--regular-font", tovaFile, "--semi-bold-font", tovaFile};
  EXPECT_THAT(print(faces),
              AllOf(HasSubstr("TovaSansLatin-SemiBold 14 "), Not(HasSubstr("Saans"))));
  const QStringList large{"--text-size", "accessibilityExtraLarge"};
  EXPECT_THAT(print(faces + large), Not(HasSubstr("TovaSansLatin-SemiBold 14 ")));
  EXPECT_EQ(print(large), print({}));  // the library's own faces keep their size
}

const char* const whole =
    R"({"returns": {"title": "Din avgift", "fee": "Avgift", "rate": "Andel", "disclaimer": "..."},
        "labels": {"discounted": "Nu", "original": "Vanlig", "hint": "Mer", "quorix_logo": "L"},
        "actions": {"close": "Lukk"}})";

TEST_F(ToolScore, ShowsATranslatorsTable) {
  const QString file = tool_.write("nb.json", whole);
  const QStringList words{"--translations", file, "--locale", "nb"};
  EXPECT_THAT(print(words), HasSubstr("\"Din avgift Nu "));
  EXPECT_THAT(print(words + QStringList{"--tree"}), HasSubstr("Text(\"Din avgift\")"));
  EXPECT_THAT(print(words + QStringList{"--sheet"}), HasSubstr("\"Lukk\" acts"));
}

TEST_F(ToolScore, NamesWhatATranslatorOverlooked) {
  const QString file = tool_.write("gaps.json", R"({"returns": {"titel": "x", "title": "Din"}})");
  const auto run = score({"--translations", file});
  EXPECT_EQ(run.status, 0);
  EXPECT_THAT(run.out, HasSubstr("\"Din  €3.00,  €6.00\""));
  EXPECT_TRUE(isOneErrorLine(run.err)) << run.err;
  EXPECT_THAT(run.err, AllOf(HasSubstr("shown empty: actions.close, labels.discounted"),
                             HasSubstr("never used: returns.titel")));
}

struct Refused {
  QStringList words;
  const char* says;
};

TEST_F(ToolScore, RefusesInOneLineWhatCannotBeUsed) {
  const QString unscored = QString::fromStdString(
      "h." + QByteArray(R"({"data":{"score":1e300,"fee_currency":"EUR","base_fee_amount":1,)"
                        R"("discounted_fee_amount":1}})")
                 .toBase64()
                 .toStdString());
  const auto table = [&](const char* name, const char* text) {
    return QStringList{"--translations", tool_.write(name, text)};
  };
  const Refused rows[] = {
      {{"--client-id", ""}, "client id is empty"},
      {{"--token", unscored}, "score"},
      {{"--out", "/nowhere/row.png"}, "can't write /nowhere/row.png"},
      {{"--out", "big.png", "--width", "9999", "--height", "9999", "--scale", "3"}, "too large"},
      {{"--regular-font", "No Such Face"}, "no face named \"No Such Face\""},
      {{"--semi-bold-font", tool_.write("face.otf", "text")}, "is not a font file"},
      {{"--translations", "/nowhere.json"}, "can't read /nowhere.json"},
      {table("list.json", "[]"), "the table is not an object of sections"},
      {table("flat.json", R"({"title": "x"})"), "\"title\" is not an object of texts"},
      {table("number.json", R"({"labels": {"hint": 3}})"), "\"labels\".\"hint\" is not a text"},
      {table("broken.json", "{\"labels\":\n{\"hint\" \"x\"}}"), "broken.json: line 2: "},
  };
  for (const Refused& row : rows) {
    SCOPED_TRACE(row.words.join(' ').toStdString());
    const auto run = score(row.words);
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.out, "");
    EXPECT_TRUE(isOneErrorLine(run.err)) << run.err;
    EXPECT_THAT(run.err, HasSubstr(row.says));
  }
  EXPECT_FALSE(QFile::exists(tool_.path("big.png")));
}

}  // namespace
