#pragma once

#include <QByteArray>
#include <QFile>
#include <QtEndian>

namespace quorix::testing {

/// The library's face `name` as drawn by another foundry: with the same names, and each letter
/// wider than the em by three units of its grid.
inline QByteArray wideFace(const QString& name, const char* foundry) {
  QFile file(QStringLiteral(FONTS "/%1.dataset/%1.otf").arg(name));
  if (!file.open(QIODevice::ReadOnly)) return {};
  QByteArray font = file.readAll();
  const auto number = [&](qsizetype at) { return qFromBigEndian<quint16>(font.constData() + at); };
  const auto table = [&](const char* tag) -> qsizetype {
    for (int i = 0; i < number(4); ++i) {
      const char* record = font.constData() + 12 + i * 16;
      if (qstrncmp(record, tag, 4) == 0) return qFromBigEndian<quint32>(record + 8);
    }
    return 0;
  };
  const int em = number(table("head") + 18), letters = number(table("hhea") + 34);
  for (int i = 0; i < letters; ++i) {
    qToBigEndian(static_cast<quint16>(em + 3), font.data() + table("hmtx") + i * 4);
  }
  font.replace(table("OS/2") + 58, 4, foundry, 4);
  font.replace(table("head") + 8, 4, foundry, 4);  // the checksum: makes it another file
  return font;
}

}  // namespace quorix::testing
