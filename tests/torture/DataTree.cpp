#include "torture/DataTree.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QSet>

using namespace Qt::StringLiterals;

namespace {

constexpr auto FileFilter = QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot;

/// A PDF bears the second of its making: that alone is set to noughts.
QByteArray WithoutTime(QByteArray bytes) {
  const QByteArray date = "/CreationDate (D:";
  const qsizetype at = bytes.startsWith("%PDF-") ? bytes.indexOf(date) : -1;
  if (at >= 0 && bytes.size() >= at + date.size() + 14) bytes.replace(at + date.size(), 14, QByteArray(14, '0'));
  return bytes;
}

QByteArray BytesOf(const QString& path) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) qFatal("%s can't be read", qPrintable(path));
  const QByteArray bytes = file.readAll();
  return bytes.isNull() ? QByteArray("") : WithoutTime(bytes);
}

QString Described(const QByteArray& bytes) {
  if (bytes.isNull()) return u"absent"_s;
  return u"%1 bytes \"%2\""_s.arg(bytes.size()).arg(QString::fromLatin1(bytes.left(240).toPercentEncoding(" ,.$/\"#")));
}

QSet<QString> NamesOf(const DataTree& one, const DataTree& other) {
  QSet<QString> names(one.keyBegin(), one.keyEnd());
  names.unite(QSet<QString>(other.keyBegin(), other.keyEnd()));
  return names;
}

}  // namespace

DataTree ReadTree(const QString& root) {
  DataTree tree;
  QDirIterator walk(root, FileFilter, QDirIterator::Subdirectories);
  while (walk.hasNext()) {
    const QString path = walk.next(), name = path.sliced(root.size());
    if (walk.fileInfo().isDir()) {
      tree.insert(name + u'/', QByteArray(""));
    } else {
      tree.insert(name, BytesOf(path));
    }
  }
  return tree;
}

void WriteTree(const QString& root, const DataTree& tree) {
  const DataTree found = QDir(root).exists() ? ReadTree(root) : DataTree();
  // From the last name to the first, so that a folder is empty when its turn comes.
  for (auto it = found.keyValueEnd(); it != found.keyValueBegin();) {
    const auto& [name, bytes] = *--it;
    if (tree.contains(name)) continue;
    const bool gone = name.endsWith(u'/') ? QDir().rmdir(root + name) : QFile::remove(root + name);
    if (!gone) qFatal("%s can't be removed", qPrintable(name));
  }
  for (const auto& [name, bytes] : tree.asKeyValueRange()) {
    if (name.endsWith(u'/')) {
      QDir().mkpath(root + name);
      continue;
    }
    if (found.contains(name) && found.value(name) == bytes) continue;
    QDir().mkpath((root + name).left((root + name).lastIndexOf(u'/')));
    QFile file(root + name);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size()) {
      qFatal("%s can't be written", qPrintable(name));
    }
  }
}

QStringList TemporariesOf(const DataTree& tree) {
  QStringList names;
  for (const QString& name : tree.keys()) {
    if (name.endsWith(".new"_L1) || name == u"/CUSTOMER.TMP" || name == u"/TemporaryFile.txt") names.append(name);
  }
  return names;
}

DataTree WithoutTemporaries(DataTree tree) {
  for (const QString& name : TemporariesOf(tree)) tree.remove(name);
  return tree;
}

QString Differences(const DataTree& wanted, const DataTree& found) {
  QString lines;
  int shown = 0;
  for (const QString& name : NamesOf(wanted, found)) {
    if (wanted.value(name) == found.value(name) && wanted.contains(name) == found.contains(name)) continue;
    if (++shown > 4) return lines + u"  and more\n"_s;
    lines += u"  %1\n    is  %2\n    not %3\n"_s.arg(name, Described(found.value(name)), Described(wanted.value(name)));
  }
  return lines;
}

int RecordLengthOf(const QString& name) {
  if (name == u"/CustomerData.txt") return 328;
  if (name == u"/KVInventoriedItems.txt") return 104;
  if (name == u"/InvoiceSalesJournal.txt") return 125;
  if (name == u"/SoldItems.txt") return 90;
  if (name == u"/TaxRecords.txt") return 75;
  const bool ledger = name.contains("/KVActiveAccounts/"_L1) || name == u"/KAPaymentRecords.txt";
  return ledger ? 155 : 0;
}

bool IsOnTheWay(const QByteArray& before, const QByteArray& after, const QByteArray& found, int length) {
  if (found.isNull() ? before.isNull() || after.isNull() : found == before || found == after) return true;
  // A file that goes is removed in one step; one that comes may be empty until its first record.
  if (length == 0 || found.isNull() || after.isNull() || found.size() % length != 0) return false;
  if (found.size() < std::min(before.size(), after.size()) || found.size() > std::max(before.size(), after.size())) {
    return false;
  }
  for (qsizetype at = 0; at < found.size(); at += length) {
    const QByteArray record = found.mid(at, length);
    if (record != before.mid(at, length) && record != after.mid(at, length)) return false;
  }
  return true;
}

QString Torn(const DataTree& before, const DataTree& after, const DataTree& found, const QSet<QString>& inPlace) {
  QString lines;
  for (const QString& name : NamesOf(before, found)) {
    if (name.endsWith(u'/') || TemporariesOf({{name, {}}}).size() == 1) continue;
    const QByteArray old = before.value(name), end = after.value(name), now = found.value(name);
    if (IsOnTheWay(old, end, now, inPlace.contains(name) ? RecordLengthOf(name) : 0)) continue;
    lines += u"  %1 is neither old nor new\n    is  %2\n    old %3\n    new %4\n"_s.arg(name, Described(now),
                                                                                        Described(old), Described(end));
  }
  return lines;
}
