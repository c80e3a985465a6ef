#pragma once

#include <QByteArray>
#include <QString>

namespace quorix::testing {

/// What this program does as a process of its own, by name; returns the exit status.
int runAsChild(const QString& task);

struct ChildResult {
  int status = -1;  ///< -1 when it did not end by itself
  QByteArray output;
};

/// Runs a line of a shell, to which $SELF is this program, in `folder` or in the current one.
ChildResult runChild(const QString& line, const QString& folder = {});

}  // namespace quorix::testing
