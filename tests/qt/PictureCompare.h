#pragma once

#include <gtest/gtest.h>

#include <QImage>
#include <QString>

namespace quorix::testing {

/// Compares pictures with reference files NAME.png. Text differs by shades between versions of the
/// font rasterizer, so a comparison leaves room for that.
///
///     EXPECT_TRUE(PictureCompare().matches(picture(row, options), "row-light"));
///
/// On failure it writes NAME.actual.png and NAME.diff.png (the differences in red over the greyed
/// reference) into the output folder. With QUORIX_UPDATE_PICTURES=1 in the environment it writes
/// the reference instead.
class PictureCompare {
 public:
  struct Tolerance {
    int channel = 24;       ///< of 255: a smaller difference is none
    double share = 0.0015;  ///< of the pixels that may differ
  };

  /// References in the tests' data, output in "pictures" beside the test program.
  PictureCompare();
  PictureCompare(QString references, QString output)
      : references_(std::move(references)), output_(std::move(output)) {}

  ::testing::AssertionResult matches(const QImage& actual, const QString& name,
                                     Tolerance tolerance) const;
  ::testing::AssertionResult matches(const QImage& actual, const QString& name) const {
    return matches(actual, name, Tolerance());
  }

 private:
  ::testing::AssertionResult update(const QImage& actual, const QString& name) const;
  ::testing::AssertionResult failure(const QString& why, const QString& name, const QImage& actual,
                                     const QImage& difference) const;

  QString references_;
  QString output_;
};

}  // namespace quorix::testing
