#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

namespace quorix::testing {

/// What this program does as a process of its own, by name; returns the exit status.
int runAsChild(const QString& task);

struct ChildResult {
  int status = -1;  ///< -1 when it did not end by itself
  QByteArray output;
};

/// Runs this program as a process of its own for `task`, with these additional "NAME=VALUE"; a
/// "NAME" alone is taken away.
ChildResult runChild(const QString& task, const QStringList& environment = {});

}  // namespace quorix::testing
