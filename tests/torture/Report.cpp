#include "torture/Report.h"

#include <QDataStream>
#include <QFile>

namespace {

QDataStream& operator<<(QDataStream& stream, const FileCalls::Note& note) {
  return stream << static_cast<int>(note.What) << note.Nth << QByteArray::fromStdString(note.Path)
                << QByteArray::fromStdString(note.To) << qint64{note.Size} << qint64{note.Result} << note.Descriptor;
}

QDataStream& operator>>(QDataStream& stream, FileCalls::Note& note) {
  int kind = 0;
  qint64 size = 0, result = 0;
  QByteArray path, to;
  stream >> kind >> note.Nth >> path >> to >> size >> result >> note.Descriptor;
  note.What = static_cast<FileCalls::Kind>(kind);
  note.Path = path.toStdString();
  note.To = to.toStdString();
  note.Size = size;
  note.Result = result;
  return stream;
}

}  // namespace

void WriteReport(const QString& file, const Outcome& outcome) {
  QFile report(file);
  if (!report.open(QIODevice::WriteOnly)) qFatal("the report can't be written");
  QDataStream stream(&report);
  stream << outcome.Tree << outcome.Boxes << outcome.Calls << outcome.Harmed << outcome.HarmedPaths << outcome.DidAgain
         << outcome.AgainTree << outcome.AgainBoxes << static_cast<int>(outcome.Notes.size());
  for (const FileCalls::Note& note : outcome.Notes) stream << note;
}

bool ReadReport(const QString& file, Outcome& outcome) {
  QFile report(file);
  if (!report.open(QIODevice::ReadOnly)) return false;
  QDataStream stream(&report);
  int notes = 0;
  stream >> outcome.Tree >> outcome.Boxes >> outcome.Calls >> outcome.Harmed >> outcome.HarmedPaths >>
      outcome.DidAgain >> outcome.AgainTree >> outcome.AgainBoxes >> notes;
  outcome.Notes.resize(static_cast<std::size_t>(notes));
  for (FileCalls::Note& note : outcome.Notes) stream >> note;
  return stream.status() == QDataStream::Ok;
}
