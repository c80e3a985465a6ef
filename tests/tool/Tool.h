#pragma once

#include <QString>
#include <QTemporaryDir>
#include <string>

/// Runs the real tool like a user: in its own folder, without a display.
class Tool {
 public:
  struct Run {
    int status = -1;
    std::string out;
    std::string err;
  };

  /// Runs a shell's command line with the tool on the path. $FACE is a host's font file, $STRINGS
  /// is the folder of the library's tables.
  Run shell(const std::string& line) const;

  QString path(const QString& file) const { return folder_.filePath(file); }

 private:
  QTemporaryDir folder_;
};
