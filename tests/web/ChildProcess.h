#pragma once

#include <QByteArray>
#include <QString>

namespace quorix::testing {

/// Runs a task of this program in its own process, by name. Returns the exit status.
int runAsChild(const QString& task);

struct ChildResult {
  int status = -1;  ///< -1 if it did not end by itself
  QByteArray output;
};

/// Runs a shell's line in `folder`, or in the current folder. $SELF is this program.
ChildResult runChild(const QString& line, const QString& folder = {});

}  // namespace quorix::testing
