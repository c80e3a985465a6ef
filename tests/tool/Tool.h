#pragma once

#include <QString>
#include <QTemporaryDir>
#include <string>

/// The real tool, run as a user would run it: in a folder of its own, without a display.
class Tool {
 public:
  struct Run {
    int status = -1;
    std::string out;
    std::string err;
  };

  /// Runs a shell's command line, with the tool on the path, a host's font file as
  /// $FACE and the folder of the library's tables as $STRINGS.
  Run shell(const std::string& line) const;

  QString path(const QString& file) const { return folder_.filePath(file); }

 private:
  QTemporaryDir folder_;
};
