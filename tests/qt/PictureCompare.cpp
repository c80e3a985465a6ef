#include "tests/qt/PictureCompare.h"

#include <QCoreApplication>
#include <QDir>
#include <algorithm>
#include <cstdlib>

namespace quorix::testing {
namespace {

using ::testing::AssertionFailure;
using ::testing::AssertionResult;
using ::testing::AssertionSuccess;

int distance(QRgb one, QRgb other) {
  return std::max({std::abs(qRed(one) - qRed(other)), std::abs(qGreen(one) - qGreen(other)),
                   std::abs(qBlue(one) - qBlue(other)), std::abs(qAlpha(one) - qAlpha(other))});
}

QRgb greyed(QRgb pixel) {
  const int pale = 160 + qGray(pixel) * 95 / 255;
  return qRgb(pale, pale, pale);
}

/// Marks what differs in `difference` and counts it.
qint64 compare(const QImage& actual, const QImage& reference, int channel, QImage& difference) {
  qint64 differing = 0;
  difference = QImage(reference.size(), QImage::Format_RGB32);
  for (int y = 0; y < reference.height(); ++y) {
    for (int x = 0; x < reference.width(); ++x) {
      const QRgb expected = reference.pixel(x, y);
      const bool differs = distance(actual.pixel(x, y), expected) > channel;
      difference.setPixel(x, y, differs ? qRgb(255, 0, 0) : greyed(expected));
      differing += differs;
    }
  }
  return differing;
}

QString sizeText(QSize size) {
  return QStringLiteral("%1 x %2").arg(size.width()).arg(size.height());
}

}  // namespace

PictureCompare::PictureCompare()
    : PictureCompare(QStringLiteral(TEST_DATA "/pictures"),
                     QCoreApplication::applicationDirPath() + QStringLiteral("/pictures")) {}

AssertionResult PictureCompare::update(const QImage& actual, const QString& name) const {
  const QString path = QDir(references_).filePath(name + QStringLiteral(".png"));
  QDir().mkpath(references_);
  if (actual.save(path)) return AssertionSuccess();
  return AssertionFailure() << "cannot write " << path.toStdString();
}

AssertionResult PictureCompare::failure(const QString& why, const QString& name,
                                        const QImage& actual, const QImage& difference) const {
  QDir().mkpath(output_);
  AssertionResult result = AssertionFailure();
  result << name.toStdString() << ": " << why.toStdString();
  const auto write = [&](const QImage& image, const char* kind) {
    const QString path = QDir(output_).filePath(name + QLatin1String(kind));
    if (!image.isNull() && image.save(path)) result << "\n  " << path.toStdString();
  };
  write(actual, ".actual.png");
  write(difference, ".diff.png");
  return result;
}

AssertionResult PictureCompare::matches(const QImage& actual, const QString& name,
                                        Tolerance tolerance) const {
  if (qEnvironmentVariableIntValue("QUORIX_UPDATE_PICTURES") == 1) return update(actual, name);
  const QImage reference(QDir(references_).filePath(name + QStringLiteral(".png")));
  if (reference.isNull()) {
    return failure(QStringLiteral("no reference (QUORIX_UPDATE_PICTURES=1 makes one)"), name,
                   actual, {});
  }
  if (actual.size() != reference.size()) {
    const QString sizes = sizeText(actual.size()) + QStringLiteral(" pixels instead of ") +
                          sizeText(reference.size());
    return failure(sizes, name, actual, {});
  }
  QImage difference;
  const qint64 differing = compare(actual, reference, tolerance.channel, difference);
  const double pixels = static_cast<double>(reference.width()) * reference.height();
  if (static_cast<double>(differing) <= tolerance.share * pixels) return AssertionSuccess();
  return failure(QStringLiteral("%1 pixels differ").arg(differing), name, actual, difference);
}

}  // namespace quorix::testing
