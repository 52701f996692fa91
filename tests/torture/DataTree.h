/// A whole data tree in memory: every file by its root-relative name with its bytes, every folder as a name that ends
/// with a separator.
#pragma once

#include <QByteArray>
#include <QMap>
#include <QSet>
#include <QString>
#include <QStringList>

using DataTree = QMap<QString, QByteArray>;

DataTree ReadTree(const QString& root);
/// Makes the folder hold this tree and nothing else.
void WriteTree(const QString& root, const DataTree& tree);
/// Names of what the writers leave beside a file until it stands.
QStringList TemporariesOf(const DataTree& tree);
DataTree WithoutTemporaries(DataTree tree);
/// What differs, a line a name; empty if nothing does.
QString Differences(const DataTree& wanted, const DataTree& found);

/// The length of the file's records; 0 of a file that is only ever replaced whole.
int RecordLengthOf(const QString& name);
/// Whether a file may stand so on the way from `before` to `after`: as before, as after, or, where records of `length`
/// bytes are written in place, each record as before or as after. An absent file is a null array.
bool IsOnTheWay(const QByteArray& before, const QByteArray& after, const QByteArray& found, int length);
/// A line for each file of `found` that isn't so; those `inPlace` are written record by record.
QString Torn(const DataTree& before, const DataTree& after, const DataTree& found, const QSet<QString>& inPlace);
