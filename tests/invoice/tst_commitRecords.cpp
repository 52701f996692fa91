// The records of a commit, byte by byte.
#include <QtTest>

#include "catalogue/CatalogueRecords.h"
#include "customers/CommonAccountRoutines.h"
#include "invoice/CommitRecords.h"
#include "support/Bytes.h"
#include "support/ErrorOf.h"
#include "support/InvoiceFixture.h"

using namespace Qt::StringLiterals;

namespace {

const QDate Today(2026, 3, 7);
const QByteArray TodayBytes = QByteArray::fromHex("000000000081e640");  // 46088 days

}  // namespace

class CommitRecordsTest : public QObject {
  Q_OBJECT

  std::optional<InvoiceFixture> m_desk;

  WorkingInvoice& Invoice() { return m_desk->Invoice; }
  void Sell() { WriteSoldItems(Invoice(), m_desk->SalesItems, m_desk->Disk, Today); }
  QByteArray Sold() const { return m_desk->Read(u"/SoldItems.txt"_s); }
  bool Update() { return UpdateInventory(Invoice(), m_desk->Disk, m_desk->Boxes); }

  static QByteArray Item(const QString& name, qint16 onHand) {
    InventoryItemRecord record;
    record.Description = name;
    record.OnHand = onHand;
    return record.Bytes();
  }
  QList<int> OnHand() const {
    const QByteArray file = m_desk->Read(u"/KVInventoriedItems.txt"_s);
    QList<int> stock;
    for (qsizetype at = 0; at < file.size(); at += 104) stock << RecordView(QByteArrayView(file).sliced(at)).Int16(86);
    return stock;
  }

 private Q_SLOTS:
  void init() {
    m_desk.emplace();
    Invoice().txtInvoiceNo = u" 20260001 "_s;
    Invoice().InvoiceNo = 20260001;
    // Everything is recorded on the day of the commit, whatever dates the invoice bears.
    Invoice().DTPicker1 = Invoice().InvoiceDate = QDate(2026, 1, 2);
    Invoice().DTShip = QDate(2026, 5, 6);
    Invoice().lblAcct = u"1001"_s;
    Invoice().lblCustomer[0] = u"not this one"_s;
    Invoice().lblCustomer[6] = u"Bay Farm"_s;
  }

  void aSoldItemOnTheListIsRecorded() {
    m_desk->SalesItems.Items = {{u"Anchor"_s, true}, {u" Rope "_s, false}};
    m_desk->AddLine({u"2"_s, u"Rope"_s});
    m_desk->AddLine({u""_s, u"Survey"_s});
    m_desk->AddLine({u"7"_s, u"rope"_s});
    Sell();
    QCOMPARE(Sold(), Field("Rope", 60) + TodayBytes + Field("20260001", 20) + Hex("0200"));
  }

  void aNameThatTheListHoldsTwiceIsRecordedTwice() {
    m_desk->SalesItems.Items = {{u"Rope"_s, false}, {u"Anchor"_s, false}, {u"Rope"_s, false}};
    m_desk->AddLine({u"2"_s, u"Rope"_s});
    m_desk->AddLine({u"-3"_s, u"Anchor"_s});
    Sell();
    const QByteArray rope = Field("Rope", 60) + TodayBytes + Field("20260001", 20) + Hex("0200");
    QCOMPARE(Sold(), rope + rope + Field("Anchor", 60) + TodayBytes + Field("20260001", 20) + Hex("fdff"));
  }

  void aGridNameWithBlanksAroundMatchesNothing() {
    m_desk->SalesItems.Items = {{u"Rope"_s, false}};
    m_desk->AddLine({u"2"_s, u"Rope "_s});
    Sell();
    QCOMPARE(Sold(), QByteArray());
  }

  void soldQuantitiesAreRoundedToEven_data() {
    QTest::addColumn<QString>("quantity");
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("2.5") << u"2.5"_s << Hex("0200");
    QTest::newRow("3.5") << u"3.5"_s << Hex("0400");
    QTest::newRow("1,000") << u"1,000"_s << Hex("e803");
    QTest::newRow("the largest") << u"32767"_s << Hex("ff7f");
  }
  void soldQuantitiesAreRoundedToEven() {
    QFETCH(const QString, quantity);
    QFETCH(const QByteArray, bytes);
    m_desk->SalesItems.Items = {{u"Rope"_s, false}};
    m_desk->AddLine({quantity, u"Rope"_s});
    Sell();
    QCOMPARE(Sold().last(2), bytes);
  }

  void aQuantityThatDoesntFitStopsThereAndWhatWasWrittenStays_data() {
    QTest::addColumn<QString>("quantity");
    QTest::addColumn<int>("error");
    QTest::newRow("too large") << u"32768"_s << 6;
    QTest::newRow("hours") << u"2 Hrs"_s << 13;
    QTest::newRow("blank") << u""_s << 13;
  }
  void aQuantityThatDoesntFitStopsThereAndWhatWasWrittenStays() {
    QFETCH(const QString, quantity);
    QFETCH(const int, error);
    m_desk->SalesItems.Items = {{u"Rope"_s, false}};
    m_desk->AddLine({u"1"_s, u"Rope"_s});
    m_desk->AddLine({quantity, u"Rope"_s});
    m_desk->AddLine({u"1"_s, u"Rope"_s});
    QCOMPARE(ErrorOf([&] { Sell(); }), error);
    QCOMPARE(Sold().size(), 90);
  }

  void soldItemsGoBehindTheLastRecord_data() {
    QTest::addColumn<int>("length");
    QTest::addColumn<int>("firstByte");
    QTest::newRow("whole records") << 180 << 180;
    QTest::newRow("a cut record of less than half is written over") << 190 << 180;
    QTest::newRow("a tie goes to the even number: 1.5 records") << 135 << 90;
    QTest::newRow("a tie goes to the even number: 2.5 records") << 225 << 270;
  }
  void soldItemsGoBehindTheLastRecord() {
    QFETCH(const int, length);
    QFETCH(const int, firstByte);
    m_desk->Write(u"/SoldItems.txt"_s, QByteArray(length, '#'));
    m_desk->SalesItems.Items = {{u"Rope"_s, false}};
    m_desk->AddLine({u"2"_s, u"Rope"_s});
    Sell();
    QCOMPARE(Sold().indexOf("Rope"), firstByte);
    QCOMPARE(Sold().first(std::min(length, firstByte)), QByteArray(std::min(length, firstByte), '#'));
  }

  void lostSoldItemsComeBackFromTheirBackupFirst() {
    m_desk->Write(u"/Backup/SoldItems.txt"_s, QByteArray(90, '#'));
    m_desk->SalesItems.Items = {{u"Rope"_s, false}};
    m_desk->AddLine({u"2"_s, u"Rope"_s});
    Sell();
    QCOMPARE(Sold().size(), 180);
    QVERIFY(Sold().startsWith("####"));
  }

  void aJournalRowHolds125Bytes() {
    Invoice().SubTotal = Currency::FromUnits(1300000);
    Invoice().Tax1 = Currency::FromUnits(25000);
    Invoice().Tax2 = Currency::FromUnits(40000);
    Invoice().CalcDiscount = Currency::FromUnits(13000);
    Invoice().FlatDiscount = Currency::FromUnits(77);
    Invoice().GrandTotal = Currency::FromUnits(1365000);
    WriteSalesJournal(Invoice(), m_desk->Disk, Today);
    const QByteArray row = Field("Bay Farm", 45) + Field("1001", 20) + Field("20260001", 20) + TodayBytes +
                           Hex("20d6130000000000") + Hex("e8fd000000000000") + Hex("c832000000000000") +
                           Hex("08d4140000000000");
    QCOMPARE(row.size(), 125);
    QCOMPARE(m_desk->Read(u"/InvoiceSalesJournal.txt"_s), row);
    WriteSalesJournal(Invoice(), m_desk->Disk, Today);
    QCOMPARE(m_desk->Read(u"/InvoiceSalesJournal.txt"_s), row + row);
  }

  void longTextsAreCutAtTheirWidth() {
    Invoice().lblCustomer[6] = QString(50, u'n');
    Invoice().lblAcct = QString(30, u'a');
    Invoice().txtInvoiceNo = QString(30, u'1');
    WriteSalesJournal(Invoice(), m_desk->Disk, Today);
    QCOMPARE(m_desk->Read(u"/InvoiceSalesJournal.txt"_s).first(85),
             QByteArray(45, 'n') + QByteArray(20, 'a') + QByteArray(20, '1'));
  }

  void taxesAboveZeroAreRecordedUnderTheirHeadings() {
    Invoice().Tax1 = Currency::FromUnits(800008);
    Invoice().Tax2 = Currency::FromUnits(50000);
    WriteTaxRecords(Invoice(), u"Sales Tax"_s, u"Tax Surcharge"_s, m_desk->Disk, Today);
    QCOMPARE(m_desk->Read(u"/TaxRecords.txt"_s),
             Field("Sales Tax", 20) + Field("3/7/2026", 15) + Field(" 20260001 ", 30) + Field("80.0008", 10) +
                 Field("Tax Surcharge", 20) + Field("3/7/2026", 15) + Field(" 20260001 ", 30) + Field("5", 10));
  }

  void onlyTheSecondTaxMakesOneRecordUnderItsHeading() {
    Invoice().Tax2 = Currency::FromUnits(25000);
    WriteTaxRecords(Invoice(), u"Sales Tax"_s, u"County Tax"_s, m_desk->Disk, Today);
    QCOMPARE(m_desk->Read(u"/TaxRecords.txt"_s),
             Field("County Tax", 20) + Field("3/7/2026", 15) + Field(" 20260001 ", 30) + Field("2.5", 10));
  }

  void taxesAtOrBelowZeroMakeNoFile() {
    Invoice().Tax1 = Currency::FromUnits(-1);
    WriteTaxRecords(Invoice(), u"Sales Tax"_s, u"Tax"_s, m_desk->Disk, Today);
    QVERIFY(!m_desk->Exists(u"/TaxRecords.txt"_s));
  }

  void aFullFileTakesNoMoreRecordsAndStaysReadable_data() {
    QTest::addColumn<int>("records");
    QTest::addColumn<int>("error");
    QTest::newRow("the last one") << 32766 << 0;
    QTest::newRow("one too many") << 32767 << 6;
  }
  void aFullFileTakesNoMoreRecordsAndStaysReadable() {
    QFETCH(const int, records);
    QFETCH(const int, error);
    m_desk->Write(u"/TaxRecords.txt"_s, QByteArray(records * 75, ' '));
    Invoice().Tax1 = Currency::FromUnits(1);
    QCOMPARE(ErrorOf([&] { WriteTaxRecords(Invoice(), u"Tax"_s, u"Tax"_s, m_desk->Disk, Today); }), error);
    QCOMPARE(m_desk->Read(u"/TaxRecords.txt"_s).size(), 32767 * 75);
  }

  void theReceivableIsPostedToTheCustomerOnTheScreen() {
    m_desk->Customer = {.txtCustomer0 = u" 2002 "_s, .txtCustomer1 = u"Other Name"_s};
    Invoice().GrandTotal = Currency::FromUnits(1365000);
    Invoice().txtPrepaid = u"$1.00"_s;
    CommonAccountRoutines accounts(m_desk->Disk, m_desk->Now);
    WriteReceivable(Invoice(), m_desk->Customer, accounts, Today);
    // The account stands in its field as in the box; the file is named without the blanks.
    QCOMPARE(m_desk->Read(u"/KVActiveAccounts/2002.txt"_s),
             Field("Bay Farm", 45) + Field(" 2002", 25) + Field("3/7/2026", 15) + Field("Previous Balance", 60) +
                 Field("$0.00", 10) + Field("Bay Farm", 45) + Field(" 2002", 25) + Field("3/7/2026", 15) +
                 Field("20260001", 60) + Field("136.5", 10));
    QCOMPARE(m_desk->Read(u"/Backup/KVActiveAccounts/2002.txt"_s), m_desk->Read(u"/KVActiveAccounts/2002.txt"_s));
    QVERIFY(!m_desk->Exists(u"/KAPaymentRecords.txt"_s));
  }

  void aPrepaidInvoicePostsItsPaymentToo() {
    m_desk->Customer = {.txtCustomer0 = u"2002"_s, .txtCustomer1 = u" Hill Farm "_s};
    Invoice().GrandTotal = Currency::FromUnits(1365000);
    Invoice().ckPrepaid = true;
    Invoice().txtPrepaid = u"$136.50"_s;
    Invoice().cboPrepaid = u"Check # 77"_s;
    CommonAccountRoutines accounts(m_desk->Disk, m_desk->Now);
    WriteReceivable(Invoice(), m_desk->Customer, accounts, Today);
    const QByteArray ledger = m_desk->Read(u"/KVActiveAccounts/2002.txt"_s);
    QCOMPARE(ledger.size(), 3 * 155);
    QCOMPARE(ledger.last(155), Field("Bay Farm", 45) + Field("2002", 25) + Field("3/7/2026", 15) +
                                   Field("Payment Received", 60) + Field("$136.50", 10));
    QCOMPARE(m_desk->Read(u"/Backup/KVActiveAccounts/2002.txt"_s), ledger);
    QCOMPARE(m_desk->Read(u"/KAPaymentRecords.txt"_s), Field("Hill Farm", 45) + Field("2002", 25) +
                                                           Field("3/7/2026", 15) + Field("Check # 77", 60) +
                                                           Field("$136.50", 10));
  }

  void aPaymentWithoutAFormHasAnEmptyMethod() {
    m_desk->Customer.txtCustomer0 = u"2002"_s;
    Invoice().ckPrepaid = true;
    Invoice().txtPrepaid = u"as typed"_s;
    CommonAccountRoutines accounts(m_desk->Disk, m_desk->Now);
    WriteReceivable(Invoice(), m_desk->Customer, accounts, Today);
    QCOMPARE(m_desk->Read(u"/KAPaymentRecords.txt"_s).sliced(85), Field("", 60) + Field("as typed", 10));
  }

  void withoutACustomerOnTheScreenTheEmptyAccountIsPostedTo() {
    CommonAccountRoutines accounts(m_desk->Disk, m_desk->Now);
    WriteReceivable(Invoice(), m_desk->Customer, accounts, Today);
    QCOMPARE(m_desk->Read(u"/KVActiveAccounts/.txt"_s).size(), 310);
    QCOMPARE(m_desk->Read(u"/Backup/KVActiveAccounts/.txt"_s).size(), 310);
  }

  void theInventoryIsLoweredByTheLinesOfItsItems() {
    m_desk->Write(u"/KVInventoriedItems.txt"_s, Item(u"Anchor"_s, 5) + Item(u"Rope"_s, 10) + Item(u"Rope"_s, 20));
    m_desk->AddLine({u" 3 "_s, u" Rope "_s});
    m_desk->AddLine({u"4"_s, u"Rope"_s});
    m_desk->AddLine({u"4"_s, u"rope"_s});
    m_desk->AddLine({u""_s, u"Anchor"_s});
    m_desk->AddLine({u"2 Hrs"_s, u"Anchor"_s});
    QVERIFY(Update());
    QCOMPARE(OnHand(), QList<int>({5, 3, 20}));
    QVERIFY(m_desk->Boxes.Said.isEmpty());
  }

  void onlyTheStockOfARecordChanges() {
    QByteArray record(104, 'x');
    record.replace(0, 50, Field("Rope", 50));
    record.replace(86, 2, Hex("0a00"));
    m_desk->Write(u"/KVInventoriedItems.txt"_s, record);
    m_desk->AddLine({u"3"_s, u"Rope"_s});
    Update();
    record.replace(86, 2, Hex("0700"));
    QCOMPARE(m_desk->Read(u"/KVInventoriedItems.txt"_s), record);
  }

  void stockBelowZeroIsZeroAndSaysSo_data() {
    QTest::addColumn<QString>("quantity");
    QTest::addColumn<int>("left");
    QTest::addColumn<bool>("low");
    QTest::newRow("to zero") << u"10"_s << 0 << false;
    QTest::newRow("below") << u"11"_s << 0 << true;
    QTest::newRow("2.5 is 2") << u"2.5"_s << 8 << false;
    QTest::newRow("3.5 is 4") << u"3.5"_s << 6 << false;
    QTest::newRow("a return") << u"-4"_s << 14 << false;
    // In a single, 1.4999999999 is 1.5, and that rounds to 2.
    QTest::newRow("through a single") << u"1.4999999999"_s << 8 << false;
    // The single next to 5.5 reads 5.5 in its seven digits.
    QTest::newRow("through a single's text") << u"5.4999998"_s << 4 << false;
  }
  void stockBelowZeroIsZeroAndSaysSo() {
    QFETCH(const QString, quantity);
    QFETCH(const int, left);
    QFETCH(const bool, low);
    m_desk->Write(u"/KVInventoriedItems.txt"_s, Item(u"Rope"_s, 10));
    m_desk->AddLine({quantity, u"Rope"_s});
    Update();
    QCOMPARE(OnHand(), QList<int>({left}));
    QCOMPARE(m_desk->Boxes.Take(), low ? QStringList(u": Item Rope may be low in Inventory"_s) : QStringList());
  }

  void aQuantityThatIsNoNumberStopsTheInventoryThere_data() {
    QTest::addColumn<QString>("quantity");
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("error");
    QTest::newRow("letters") << u"3x"_s << u"no such item"_s << 13;
    QTest::newRow("more than a stock can hold") << u"32768"_s << u"Rope"_s << 6;
    QTest::newRow("beyond a single") << u"1E39"_s << u"no such item"_s << 6;
  }
  void aQuantityThatIsNoNumberStopsTheInventoryThere() {
    QFETCH(const QString, quantity);
    QFETCH(const QString, name);
    QFETCH(const int, error);
    m_desk->Write(u"/KVInventoriedItems.txt"_s, Item(u"Rope"_s, 10));
    m_desk->AddLine({u"1"_s, u"Rope"_s});
    m_desk->AddLine({quantity, name});
    m_desk->AddLine({u"1"_s, u"Rope"_s});
    QCOMPARE(ErrorOf([&] { Update(); }), error);
    QCOMPARE(OnHand(), QList<int>({9}));
  }

  void aQuantityBeyondAnyStockOfWhatIsNotStockedChangesNothing() {
    m_desk->Write(u"/KVInventoriedItems.txt"_s, Item(u"Rope"_s, 10));
    m_desk->AddLine({u"40000"_s, u"Leaflets"_s});
    m_desk->AddLine({u"1"_s, u"Rope"_s});
    Update();
    QCOMPARE(OnHand(), QList<int>({9}));
    QCOMPARE(m_desk->Boxes.Take(), QStringList());
  }

  void withoutAnInventoryNothingHappens() {
    m_desk->AddLine({u"no number"_s, u"Rope"_s});
    QVERIFY(!Update());
    QVERIFY(m_desk->Tree().isEmpty());
  }
};

QTEST_GUILESS_MAIN(CommitRecordsTest)
#include "tst_commitRecords.moc"
