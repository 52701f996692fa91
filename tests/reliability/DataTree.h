/// A whole data tree in memory: every file by its root-relative name with its bytes, every folder as a name that ends
/// with a separator.
#pragma once

#include <QByteArray>
#include <QMap>
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
/// Whether the file may stand so on the way from `before` to `after`: as before, as after, or, where its records are
/// written in place, each record as before or as after. An absent file is a null array.
bool IsOnTheWay(const QString& name, const QByteArray& before, const QByteArray& after, const QByteArray& found);
/// Whether each file of `found` is; else a line for each that isn't.
QString Torn(const DataTree& before, const DataTree& after, const DataTree& found);
