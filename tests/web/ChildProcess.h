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

/// A copy of this program, called in a folder by its bare name or under another one.
struct Place {
  QString programFolder;  ///< empty: this program itself
  QString program;
  QString workingFolder;  ///< empty: the current one
  QString calledAs{};     ///< what it is told that its name is; empty: its own
};

/// Runs this program as a process of its own for `task`, with these additional "NAME=VALUE"; a
/// "NAME" alone is taken away.
ChildResult runChild(const QString& task, const QStringList& environment = {},
                     const Place& place = {});

}  // namespace quorix::testing
