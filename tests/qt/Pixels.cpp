#include "tests/qt/Pixels.h"

#include <QCoreApplication>
#include <QDir>

namespace quorix::testing {
namespace {

/// Differences of a channel (0 to 255) up to this are ignored.
constexpr int kChannelTolerance = 24;
/// The share of pixels that may differ.
constexpr double kShareTolerance = 0.0015;

/// Marks differing pixels in `difference` and counts them.
int compare(const QImage& actual, const QImage& reference, QImage& difference) {
  int differing = 0;
  difference = reference.convertToFormat(QImage::Format_Grayscale8);
  difference = difference.convertToFormat(QImage::Format_RGB32);
  for (int y = 0; y < reference.height(); ++y) {
    for (int x = 0; x < reference.width(); ++x) {
      if (distance(actual.pixel(x, y), reference.pixel(x, y)) <= kChannelTolerance) continue;
      difference.setPixel(x, y, qRgb(255, 0, 0));
      ++differing;
    }
  }
  return differing;
}

}  // namespace

::testing::AssertionResult matchesPicture(const QImage& actual, const QString& name) {
  const QString path = QStringLiteral(TEST_DATA "/pictures/") + name + QStringLiteral(".png");
  if (qEnvironmentVariableIntValue("QUORIX_UPDATE_PICTURES") == 1) {
    if (actual.save(path)) return ::testing::AssertionSuccess();
    return ::testing::AssertionFailure() << "cannot write " << path.toStdString();
  }
  const QDir output(QCoreApplication::applicationDirPath() + QStringLiteral("/pictures"));
  output.mkpath(QStringLiteral("."));
  auto failure = ::testing::AssertionFailure();
  failure << name.toStdString() << " in " << output.path().toStdString() << ": ";
  const QImage reference(path);
  if (actual.size() != reference.size()) {
    actual.save(output.filePath(name + QStringLiteral(".actual.png")));
    return failure << "another size than the reference, or none at all";
  }
  QImage difference;
  const int differing = compare(actual, reference, difference);
  const double pixels = static_cast<double>(reference.width()) * reference.height();
  if (differing <= kShareTolerance * pixels) return ::testing::AssertionSuccess();
  actual.save(output.filePath(name + QStringLiteral(".actual.png")));
  difference.save(output.filePath(name + QStringLiteral(".diff.png")));
  return failure << differing << " pixels differ";
}

}  // namespace quorix::testing
