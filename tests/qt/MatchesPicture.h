#pragma once

#include <gtest/gtest.h>

#include <QImage>
#include <QString>

namespace quorix::testing {

/// Compares a picture with the reference NAME.png in the tests' data. Tolerates small differences,
/// because the shades of text depend on the version of the font rasterizer.
///
///     EXPECT_TRUE(matchesPicture(picture(row, options), "row-light"));
///
/// On failure it writes NAME.actual.png and NAME.diff.png (the differences in red over the greyed
/// reference) into "pictures" beside the test program. With QUORIX_UPDATE_PICTURES=1 in the
/// environment it writes the reference instead.
::testing::AssertionResult matchesPicture(const QImage& actual, const QString& name);

}  // namespace quorix::testing
