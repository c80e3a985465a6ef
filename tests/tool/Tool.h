#pragma once

#include <QString>
#include <QStringList>
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

  Run run(const QStringList& words, const std::string& input = {}) const;
  /// Runs a shell's command line, with the tool on the path and a host's font file as $FACE.
  Run shell(const std::string& line) const;

  QString path(const QString& file) const { return folder_.filePath(file); }
  QString write(const QString& file, const QByteArray& bytes) const;

 private:
  Run start(const QString& program, const QStringList& words, const std::string& input) const;
  QTemporaryDir folder_;
};

/// Whether `text` is one line that says who speaks.
bool isOneErrorLine(const std::string& text);
