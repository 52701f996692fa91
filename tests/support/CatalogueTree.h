/// A catalogue on a data tree of its own, for tests of the rules.
#pragma once

#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

#include "catalogue/Catalogue.h"
#include "catalogue/SalesItemsList.h"
#include "runtime/FileDevice.h"
#include "shell/CommonDiskRoutines.h"
#include "support/Bytes.h"
#include "support/ErrorOf.h"

class CatalogueTree {
 public:
  CatalogueTree() : CatalogueTree(m_ownDevice) {}
  explicit CatalogueTree(FileDevice& device)
      : m_store(device), Disk(m_store, m_folder.path(), QStringLiteral("KarvexInvoicer")) {
    QDir(m_folder.path()).mkdir(QStringLiteral("Backup"));
  }

  void Write(const QString& name, const QByteArray& content) {
    QFile file(m_folder.path() + name);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(content), content.size());
  }
  /// The file's bytes; null where there is no file.
  QByteArray Read(const QString& name) const {
    QFile file(m_folder.path() + name);
    if (!file.open(QIODevice::ReadOnly)) return {};
    const QByteArray content = file.readAll();
    return content.isNull() ? QByteArray("") : content;
  }
  bool Has(const QString& name) const { return QFile::exists(m_folder.path() + name); }
  const QString Root() const { return m_folder.path(); }

 private:
  QTemporaryDir m_folder;
  FileDevice m_ownDevice;
  FileStore m_store;

 public:
  CommonDiskRoutines Disk;
  CatalogueLists Lists;
  SalesItemsList SalesItems;
  Catalogue Catalog{Disk, Lists, SalesItems};
};

/// One column of a grid's data rows.
inline QStringList Column(const TextMatrix& grid, int col) {
  QStringList texts;
  for (int row = 1; row < grid.Rows(); ++row) texts << grid.Text(row, col);
  return texts;
}

/// The descriptions that the invoice's list offers.
inline QStringList Offered(const CatalogueLists& lists, int element) {
  QStringList texts;
  for (const CatalogueEntry& entry : lists.Entries.at(static_cast<std::size_t>(element))) texts << entry.Description;
  return texts;
}
