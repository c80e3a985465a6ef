#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QJsonDocument>
#include <QJsonObject>

#include "Tool.h"

using testing::HasSubstr;

namespace {

std::string tokenWith(const char* payload) {
  return "h." + QByteArray(payload).toBase64().toStdString() + ".s";
}

QJsonObject objectOf(const std::string& text) {
  return QJsonDocument::fromJson(QByteArray::fromStdString(text)).object();
}

struct Minting {
  QStringList words;
  const char* token;  // signed by another implementation of HMAC-SHA256
};

const Minting mintings[] = {
    {{},
     "eyJhbGciOiJIUzI1NiIsInR5cCI6IkpXVCJ9."
     "eyJkYXRhIjp7ImJhc2VfZmVlX2Ftb3VudCI6NjAwLCJkaXNjb3VudGVkX"
     "2ZlZV9hbW91bnQiOjMwMCwiZmVlX2N1cnJlbmN5IjoiRVVSIiwic2NvcmUiOjAuODJ9fQ._CgKMvOVq5BAg43l_"
     "78kN7nb"
     "0vBMVh5Z2jyzaAXW2cQ"},
    {{"--score", "1", "--currency", "S\"é", "--base", "-7", "--discounted", "9223372036854775807",
      "--secret", QString(40, QChar(u'κ'))},
     "eyJhbGciOiJIUzI1NiIsInR5cCI6IkpXVCJ9.eyJkYXRhIjp7ImJhc2VfZmVlX2Ftb3VudCI6LTcsImRpc2NvdW50ZWRf"
     "ZmVlX2Ftb3VudCI6OTIyMzM3MjAzNjg1NDc3NTgwNywiZmVlX2N1cnJlbmN5IjoiU1wiw6kiLCJzY29yZSI6MX19.p15f"
     "9T93y8Z8oOSkJt8U8ZNPimVAKUnbmYMDAw1lQq4"},
};

TEST(ToolMint, SignsAsAnyServiceWould) {
  const Tool tool;
  for (const Minting& minting : mintings) EXPECT_EQ(tool.mint(minting.words), minting.token);
}

TEST(ToolDecode, GivesBackWhatWasMinted) {
  const Tool tool;
  const std::string token = tool.mint({"--score", "-0.125", "--currency", "JPY", "--base",
                                       "-9223372036854775808", "--discounted", "0"});
  const auto run = tool.run({"decode", QString::fromStdString(token)});
  EXPECT_EQ(run.status, 0);
  const QJsonObject figures = objectOf(run.out);
  EXPECT_EQ(figures["score"].toDouble(), -0.125);
  EXPECT_EQ(figures["currency"].toString(), "JPY");
  EXPECT_EQ(figures["returnsFee"].toInteger(), std::numeric_limits<qint64>::min());
  EXPECT_EQ(figures["discountedReturnsFee"].toInteger(1), 0);
}

TEST(ToolDecode, ReadsTheStandardInput) {
  const Tool tool;
  const std::string token = tool.mint();
  const auto run = tool.run({"decode", "-"}, " " + token.substr(0, token.rfind('.')) + "\r\n");
  EXPECT_EQ(run.status, 0);
  EXPECT_EQ(objectOf(run.out)["returnsFee"].toInteger(), 600);
}

struct Refusal {
  std::string token;
  const char* says;
};

const Refusal refusals[] = {
    {"", "fewer than two pieces"},
    {"h.!!!.s", "not base64"},
    {tokenWith("{"), "not a JSON document"},
    {tokenWith(R"({"data":{"score":1,"fee_currency":"EUR"}})"), "\"base_fee_amount\""},
};

TEST(ToolTokens, ARefusalNamesItsStepAndDrawsNothing) {
  const Tool tool;
  for (const Refusal& refusal : refusals) {
    SCOPED_TRACE(refusal.token);
    const QString token = QString::fromStdString(refusal.token);
    const QString picture = tool.path("refused.png");
    for (const QStringList& words :
         {QStringList{"decode", token}, {"score", "--token", token, "--out", picture}}) {
      const auto run = tool.run(words);
      EXPECT_EQ(run.status, 1);
      EXPECT_EQ(run.out, "");
      EXPECT_TRUE(isOneErrorLine(run.err)) << run.err;
      EXPECT_THAT(run.err, HasSubstr(refusal.says));
    }
    EXPECT_FALSE(QFile::exists(picture));
  }
}

}  // namespace
