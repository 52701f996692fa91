// The three labor rates and their file.

#include "support/CatalogueTree.h"
#include "support/FailingDevice.h"

using namespace Qt::StringLiterals;

namespace {
const QString LaborFile = u"/Labor.txt"_s;
}

class LaborRatesFile : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void aSaveWritesThreeLinesOfNameAndRate();
  void aSaveDropsTheBackupCopy();
  void aLoadReadsThreePairsAndMakesReloadLive();
  void withoutAFileGeneralLaborStandsAtZeroAndReloadIsNotLive();
  void aLostFileComesBackFromTheBackup();
  void aFileThatEndsEarlyIsDamageAndChangesNothing();
  void aFullDiskLeavesTheOldFile();
};

void LaborRatesFile::aSaveWritesThreeLinesOfNameAndRate() {
  CatalogueTree tree;
  tree.Catalog.Labor.txtLabor = {u"General Labor"_s, u"Welding, heavy"_s, QString()};
  tree.Catalog.Labor.txtLaborRate = {u"$45.00"_s, u"$1,060.50"_s, u"$0.00"_s};
  tree.Catalog.SaveLabor();
  QCOMPARE(tree.Read(LaborFile),
           QByteArray("\"General Labor\",\"$45.00\"\r\n\"Welding, heavy\",\"$1,060.50\"\r\n\"\",\"$0.00\"\r\n"));
}

void LaborRatesFile::aSaveDropsTheBackupCopy() {
  CatalogueTree tree;
  tree.Write(u"/Backup/Labor.txt"_s, "old");
  tree.Catalog.SaveLabor();
  QVERIFY(!tree.Has(u"/Backup/Labor.txt"_s));
}

void LaborRatesFile::aLoadReadsThreePairsAndMakesReloadLive() {
  CatalogueTree tree;
  tree.Write(LaborFile, "\"General Labor\",\"$45.00\"\r\n\"Welding, heavy\",\"$1,060.50\"\r\n\"\",\"\"\r\n");
  int told = 0;
  tree.Catalog.LaborLoaded = [&] { ++told; };
  tree.Catalog.LoadLabor();
  QCOMPARE(tree.Catalog.Labor.txtLabor[1], u"Welding, heavy"_s);
  QCOMPARE(tree.Catalog.Labor.txtLaborRate[0], u"$45.00"_s);
  QCOMPARE(tree.Catalog.Labor.txtLaborRate[1], u"$1,060.50"_s);
  QCOMPARE(tree.Catalog.Labor.txtLaborRate[2], QString());
  QVERIFY(tree.Catalog.CommandEnabled(16));
  QCOMPARE(told, 1);
}

void LaborRatesFile::withoutAFileGeneralLaborStandsAtZeroAndReloadIsNotLive() {
  CatalogueTree tree;
  tree.Catalog.Labor.txtLabor = {u"x"_s, u"y"_s, u"z"_s};
  tree.Catalog.EnableCommand(16, true);
  tree.Catalog.LoadLabor();
  QCOMPARE(tree.Catalog.Labor.txtLabor, (std::array<QString, 3>{u"General Labor"_s, QString(), QString()}));
  QCOMPARE(tree.Catalog.Labor.txtLaborRate, (std::array<QString, 3>{u"$0.00"_s, u"$0.00"_s, u"$0.00"_s}));
  QVERIFY(!tree.Catalog.CommandEnabled(16));
  QVERIFY(!tree.Has(LaborFile));
}

void LaborRatesFile::aLostFileComesBackFromTheBackup() {
  CatalogueTree tree;
  tree.Write(u"/Backup/Labor.txt"_s, "\"A\",\"$1.00\"\r\n\"B\",\"$2.00\"\r\n\"C\",\"$3.00\"\r\n");
  tree.Catalog.Load();
  QCOMPARE(tree.Catalog.Labor.txtLabor[2], u"C"_s);
  QVERIFY(tree.Has(LaborFile));
}

void LaborRatesFile::aFileThatEndsEarlyIsDamageAndChangesNothing() {
  CatalogueTree tree;
  tree.Write(LaborFile, "\"A\",\"$1.00\"\r\n\"B\",\"$2.00\"\r\n");
  tree.Catalog.Labor.txtLabor[0] = u"held"_s;
  const RuntimeError error = CaughtFrom([&] { tree.Catalog.LoadLabor(); });
  QCOMPARE(error.Number(), 62);
  QCOMPARE(error.Subject(), LaborFile);
  QCOMPARE(int(error.From()), int(RuntimeError::Origin::FileContent));
  QCOMPARE(tree.Catalog.Labor.txtLabor[0], u"held"_s);
}

void LaborRatesFile::aFullDiskLeavesTheOldFile() {
  FailingDevice device;
  CatalogueTree tree(device);
  tree.Write(LaborFile, "old");
  tree.Write(u"/Backup/Labor.txt"_s, "older");
  device.FailAt(FailingDevice::Call::Write, 1, ENOSPC);
  QCOMPARE(ErrorOf([&] { tree.Catalog.SaveLabor(); }), 61);
  QCOMPARE(tree.Read(LaborFile), QByteArray("old"));
  QCOMPARE(tree.Read(u"/Backup/Labor.txt"_s), QByteArray("older"));
}

QTEST_GUILESS_MAIN(LaborRatesFile)
#include "tst_laborRates.moc"
