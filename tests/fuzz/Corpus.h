/// The inputs that the fuzzing of a reader begins with: small files written by hand, tests/fuzz/corpus/<reader>/.
/// `whole` is a file as the program writes it, of one record where the file holds records.
#pragma once

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QMap>
#include <vector>

/// The inputs of one reader by the names of their files.
inline QMap<QString, QByteArray> CorpusOf(const QByteArray& reader) {
  QMap<QString, QByteArray> inputs;
  const QDir folder(QStringLiteral(KARVEX_FUZZ_CORPUS "/") + QString::fromLatin1(reader));
  for (const QString& name : folder.entryList(QDir::Files, QDir::Name)) {
    QFile file(folder.filePath(name));
    if (file.open(QIODevice::ReadOnly)) inputs.insert(name, file.readAll());
  }
  return inputs;
}
