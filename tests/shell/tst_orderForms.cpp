// The ordering menus: what each entry asks, and the page that it opens.
#include <QtTest>

#include "shell/OpenWebPage.h"
#include "shell/OrderForms.h"
#include "support/DataFolder.h"
#include "support/ErrorOf.h"
#include "support/ScriptedDialogs.h"

using namespace Qt::StringLiterals;

class OrderFormsTest : public QObject {
  Q_OBJECT

  static OrderEntry Entry(const QString& name) {
    for (const auto& entries : {DeluxeOrderEntries(), AskingOrderEntries()}) {
      for (const OrderEntry& entry : entries) {
        if (entry.Name == name) return entry;
      }
    }
    return {};
  }

 private Q_SLOTS:
  void checksAndDepositSlipsOpenTheirPagesAtOnce_data() {
    QTest::addColumn<QString>("page");
    QTest::newRow("mnuDeluxe") << u"checks-and-envelopes.html"_s;
    QTest::newRow("mnuDepositSlips") << u"deposit-slips.html"_s;
  }
  void checksAndDepositSlipsOpenTheirPagesAtOnce() {
    QFETCH(QString, page);
    DataFolder folder;
    ScriptedDialogs dialogs;
    RunOrderEntry(Entry(QString::fromLatin1(QTest::currentDataTag())), u"/program"_s, folder.Disk, dialogs);
    QCOMPARE(dialogs.Said, QStringList{u"page|/program/suppliers/"_s + page});
  }

  void theOthersAskFirstAndOpenOnYes_data() {
    QTest::addColumn<QString>("caption");
    QTest::addColumn<QString>("page");
    QTest::newRow("mnuPPaper") << u"Order Paper"_s << u"perforated-response-paper.html"_s;
    QTest::newRow("mnuPPPaper") << u"Order Paper"_s << u"plain-printer-paper.html"_s;
    QTest::newRow("mnuGraytex") << u"Order Graytex Forms"_s << u"graytex-forms.html"_s;
    QTest::newRow("mnuAddress") << u"Order Labels"_s << u"address-labels.html"_s;
    QTest::newRow("mnuLabels") << u"Order Labels"_s << u"mailing-labels.html"_s;
  }
  void theOthersAskFirstAndOpenOnYes() {
    QFETCH(QString, caption);
    QFETCH(QString, page);
    DataFolder folder;
    ScriptedDialogs dialogs;
    dialogs.Answers = {false, true};
    const OrderEntry entry = Entry(QString::fromLatin1(QTest::currentDataTag()));
    RunOrderEntry(entry, u"/program"_s, folder.Disk, dialogs);
    QStringList seen = dialogs.Take();
    QCOMPARE(seen.size(), 1);
    QVERIFY2(seen[0].startsWith(caption + u"? "_s), qPrintable(seen[0]));
    QVERIFY2(seen[0].endsWith(u"\nClick Yes to connect to a Supplier"_s), qPrintable(seen[0]));
    QVERIFY(folder.Files().isEmpty());

    RunOrderEntry(entry, u"/program"_s, folder.Disk, dialogs);
    seen = dialogs.Take();
    QCOMPARE(seen.size(), 2);
    QCOMPARE(seen[1], u"page|/program/suppliers/"_s + page);
  }

  void thePerforatedPaperIsExplained() {
    DataFolder folder;
    ScriptedDialogs dialogs;
    dialogs.Answers = {false};
    RunOrderEntry(Entry(u"mnuPPaper"_s), u"/program"_s, folder.Disk, dialogs);
    QCOMPARE(dialogs.Said, QStringList{u"Order Paper? Perforated Response Paper is used to create\n"
                                       "Invoices with a Remittance Slip\nClick Yes to connect to a Supplier"_s});
  }

  void everySupplierPageIsShippedWithItsStyleAndTheWayToOrder() {
    const auto shipped = [](const QString& page) {
      QFile file(QStringLiteral(QT_TESTCASE_SOURCEDIR "/../docs/suppliers/") + page);
      return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    };
    QVERIFY(!shipped(u"suppliers.css"_s).isEmpty());
    const QByteArray ordering = shipped(u"index.html"_s);
    for (const auto& entries : {DeluxeOrderEntries(), AskingOrderEntries()}) {
      for (const OrderEntry& entry : entries) {
        const QByteArray page = shipped(entry.Page);
        QVERIFY2(page.contains("href=\"suppliers.css\""), qPrintable(entry.Page));
        QVERIFY2(page.contains("href=\"index.html\""), qPrintable(entry.Page));
        QVERIFY2(ordering.contains("href=\"" + entry.Page.toLatin1() + "\""), qPrintable(entry.Page));
      }
    }
  }

  void aPageIsNotedInTheShortcutWhichIsRewrittenEachTime() {
    DataFolder folder;
    ScriptedDialogs dialogs;
    OpenWebPage(u"/program/manual/index.html"_s, folder.Disk, dialogs);
    QCOMPARE(folder.Bytes(u"/Temp.url"_s), "[InternetShortcut]\r\nURL = /program/manual/index.html\r\n");
    OpenWebPage(u"http://a.example/"_s, folder.Disk, dialogs);
    QCOMPARE(folder.Bytes(u"/Temp.url"_s), "[InternetShortcut]\r\nURL = http://a.example/\r\n");
    QCOMPARE(dialogs.Said, (QStringList{u"page|/program/manual/index.html"_s, u"page|http://a.example/"_s}));
  }

  void aPageDoesNotOpenWhenItsShortcutCannotBeWritten() {
    DataFolder folder;
    ScriptedDialogs dialogs;
    folder.Device.FailAt(FailingDevice::Call::Write, 1, ENOSPC);
    QCOMPARE(ErrorOf([&] { OpenWebPage(u"http://a.example/"_s, folder.Disk, dialogs); }), ErrorNumber::DiskFull);
    QVERIFY(dialogs.Said.isEmpty());
    QVERIFY(folder.Files().isEmpty());
  }
};

QTEST_GUILESS_MAIN(OrderFormsTest)
#include "tst_orderForms.moc"
