#include "qt/WebComponent.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QHash>
#include <QLibrary>
#include <QtGlobal>

#ifdef Q_OS_UNIX
#include <dlfcn.h>
#ifdef __GLIBC__
#include <link.h>
#endif
#endif

namespace quorix::qt {
namespace {

/// The folder of the shared library that holds this code; empty unless that is certain. A program
/// is named by how it was called, which may be any path, and a library that was loaded by a
/// relative path by that path: neither says where the file is.
QString ownFolder() {
#ifdef Q_OS_UNIX
  Dl_info info;
  static const char here = 0;
#ifdef __GLIBC__
  void* map = nullptr;
  if (dladdr1(&here, &info, &map, RTLD_DL_LINKMAP) == 0 || !map) return {};
  info.dli_fname = static_cast<const link_map*>(map)->l_name;  // empty for the program itself
#else
  if (dladdr(&here, &info) == 0) return {};
#endif
  const QFileInfo file(QString::fromLocal8Bit(info.dli_fname));
  if (file.isAbsolute()) return file.absolutePath();
#endif
  return {};
}

/// In the order of the search.
QStringList searchedFolders() {
  const QString program = QCoreApplication::applicationDirPath();
  QStringList all = {program, program + QStringLiteral("/quorix")};
  const QString own = ownFolder();
  if (!own.isEmpty()) all << own << own + QStringLiteral("/quorix");
#ifdef QUORIX_WEB_FROM_PROGRAM
  all.append(program + QStringLiteral("/" QUORIX_WEB_FROM_PROGRAM));
#endif
#ifdef QUORIX_WEB_BUILD_FOLDER
  all.append(QStringLiteral(QUORIX_WEB_BUILD_FOLDER));
#endif
  return all;
}

QString fileOf(const QString& name) {
#if defined(Q_OS_WIN)
  const QString file = name + QStringLiteral(".dll");
#else
  const QString file = QStringLiteral("lib") + name + QStringLiteral(".so");
#endif
  const QStringList folders = searchedFolders();
  for (const QString& folder : folders) {
    const QFileInfo found(folder + QLatin1Char('/') + file);
    if (found.isFile()) return found.absoluteFilePath();
  }
  qCWarning(webLog, "there is no %s in %s", qUtf8Printable(file),
            qUtf8Printable(folders.join(QStringLiteral(", "))));
  return {};
}

using Functions = QHash<QString, OpenWebPage>;
Q_GLOBAL_STATIC(Functions, known)

OpenWebPage loaded(const QString& name) {
  const QString file = fileOf(name);
  if (file.isEmpty()) return nullptr;
  QLibrary library(file);
  const auto open = reinterpret_cast<OpenWebPage>(library.resolve(openWebPageSymbol));
  if (!open) {
    qCWarning(webLog, "no web engine in %s: %s", qUtf8Printable(file),
              qUtf8Printable(library.errorString()));
  }
  return open;
}

}  // namespace

bool WebComponentLoader::isThere(const QString& name) { return !fileOf(name).isEmpty(); }

bool WebComponentLoader::isLoaded(const QString& name) { return known->value(name) != nullptr; }

OpenWebPage WebComponentLoader::load(const QString& name) {
  if (!known->contains(name)) known->insert(name, loaded(name));
  return known->value(name);
}

}  // namespace quorix::qt
