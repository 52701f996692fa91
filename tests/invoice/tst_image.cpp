// The bytes of an invoice image, partial and completed.
#include <QtTest>

#include "invoice/InvoiceImage.h"
#include "support/ErrorOf.h"
#include "support/InvoiceFixture.h"

using namespace Qt::StringLiterals;

namespace {

const QDate Today(2026, 3, 7);

}  // namespace

class ImageTest : public QObject {
  Q_OBJECT

  std::optional<InvoiceFixture> m_desk;

  WorkingInvoice& Invoice() { return m_desk->Invoice; }

 private Q_SLOTS:
  void init() {
    m_desk.emplace();
    WorkingInvoice& invoice = Invoice();
    invoice.txtInvoiceNo = u"20260001"_s;
    invoice.lblAcct = u"not this one"_s;
    invoice.lblAcctNo = u" 1001 "_s;
    invoice.lblCustomer = {u"x"_s,          u"x"_s,          u"x"_s, u"x"_s,     u"x"_s,  u"x"_s,
                           u"Bay Farm  "_s, u" 1 Dock Rd"_s, u""_s,  u"Salem"_s, u"MA"_s, u"01970"_s};
    invoice.txtShipto = {u"Barn"_s, u"2 Hay Ln "_s, u""_s, u"Lynn"_s, u"MA"_s, u"01901"_s, u" Ann, at the gate "_s};
    invoice.txtReference = u" PO 5, rush "_s;
    invoice.cboShipping = u"UPS - Ground "_s;
    invoice.DTShip = QDate(2026, 12, 31);
    invoice.txtGrandTotal = u"$141.50"_s;
    invoice.txtTotal = u"$130.00"_s;
    invoice.txtTax = u"$6.50"_s;
    invoice.txtShip = u"$5.00"_s;
    m_desk->AddLine({u" 2"_s, u" Rope, \"best\" "_s, u"3/1/2026"_s, u"$25.00"_s, u"$50.00"_s, u"True"_s});
    m_desk->AddLine({u""_s, u"Survey \u20ac \u4e00"_s, u"3/7/2026"_s, u"$80.00"_s, u"$80.00"_s, u"False"_s});
  }

  void aPartialImageHoldsHeaderAddressesControlAndLines() {
    SavePartialImage(Invoice(), m_desk->Disk, Today);
    QCOMPARE(m_desk->Read(u"/KarvexInvoicer/IncompleteInvoices/20260001.txt"_s),
             "20260001\r\n"
             "1001\r\n"
             "Bay Farm\r\n"
             "3/7/2026\r\n"
             "\"Bay Farm\"\r\n"
             "\"1 Dock Rd\"\r\n"
             "\"\"\r\n"
             "\"Salem\"\r\n"
             "\"MA\"\r\n"
             "\"01970\"\r\n"
             "\"Barn\"\r\n"
             "\"2 Hay Ln\"\r\n"
             "\"\"\r\n"
             "\"Lynn\"\r\n"
             "\"MA\"\r\n"
             "\"01901\"\r\n"
             "20260001\r\n"
             "1001\r\n"
             "PO 5, rush\r\n"
             "Ann, at the gate\r\n"
             "2\r\n"
             " 2\r\n"
             " Rope, \"best\" \r\n"
             "3/1/2026\r\n"
             "$25.00\r\n"
             "$50.00\r\n"
             "True\r\n"
             "\r\n"
             "Survey \x80 ?\r\n"
             "3/7/2026\r\n"
             "$80.00\r\n"
             "$80.00\r\n"
             "False\r\n");
  }

  void aCompletedImageAddsTotalCarrierDateAndTheSevenBoxes() {
    SaveCompletedInvoice(Invoice(), m_desk->Disk, Today);
    QCOMPARE(m_desk->Read(u"/CompletedInvoices/20260001.txt"_s),
             "20260001\r\n"
             "1001\r\n"
             "Bay Farm\r\n"
             "3/7/2026\r\n"
             "$141.50\r\n"
             "\"Bay Farm\"\r\n"
             "\"1 Dock Rd\"\r\n"
             "\"\"\r\n"
             "\"Salem\"\r\n"
             "\"MA\"\r\n"
             "\"01970\"\r\n"
             "\"Barn\"\r\n"
             "\"2 Hay Ln\"\r\n"
             "\"\"\r\n"
             "\"Lynn\"\r\n"
             "\"MA\"\r\n"
             "\"01901\"\r\n"
             "UPS - Ground \r\n"
             "12/31/2026\r\n"
             "20260001\r\n"
             "1001\r\n"
             "PO 5, rush\r\n"
             "Ann, at the gate\r\n"
             "2\r\n"
             " 2\r\n"
             " Rope, \"best\" \r\n"
             "3/1/2026\r\n"
             "$25.00\r\n"
             "$50.00\r\n"
             "True\r\n"
             "\r\n"
             "Survey \x80 ?\r\n"
             "3/7/2026\r\n"
             "$80.00\r\n"
             "$80.00\r\n"
             "False\r\n"
             "\"$130.00\",\"$6.50\",\"$0.00\",\"$141.50\",\"$5.00\",\"$0.00\",\"$0.00\"\r\n");
    QCOMPARE(Invoice().txtTax2, u"$0.00"_s);
    QCOMPARE(Invoice().txtMisc, u"$0.00"_s);
    QCOMPARE(Invoice().txtDiscount, u"$0.00"_s);
  }

  void anInvoiceWithoutLinesHasACountOfZeroAndNoCells() {
    Invoice().LineCount = 0;
    SavePartialImage(Invoice(), m_desk->Disk, Today);
    const QByteArray image = m_desk->Read(u"/KarvexInvoicer/IncompleteInvoices/20260001.txt"_s);
    QCOMPARE(image.count("\r\n"), 4 + 12 + 5);
    QVERIFY(image.endsWith("Ann, at the gate\r\n0\r\n"));
    SaveCompletedInvoice(Invoice(), m_desk->Disk, Today);
    QCOMPARE(m_desk->Read(u"/CompletedInvoices/20260001.txt"_s).count("\r\n"), 5 + 12 + 2 + 5 + 1);
  }

  void aCommaInTheReferenceMovesEveryLaterControlFieldDown() {
    SavePartialImage(Invoice(), m_desk->Disk, Today);
    ListReader file = m_desk->Disk.OpenInputFile(u"/KarvexInvoicer/IncompleteInvoices/20260001.txt"_s);
    for (int i = 0; i < 4; ++i) file.ReadLine();
    for (int i = 0; i < 12 + 2; ++i) file.ReadString();
    QCOMPARE(file.ReadString(), u"PO 5"_s);
    QCOMPARE(file.ReadString(), u"rush"_s);  // read as the attention line
    QCOMPARE(ErrorOf([&] { file.ReadInt16(); }), 13);
  }

  void aQuoteInASoldToLineCutsItWhenReadBack() {
    Invoice().lblCustomer[6] = u"The \"Bay\" Farm"_s;
    SavePartialImage(Invoice(), m_desk->Disk, Today);
    ListReader file = m_desk->Disk.OpenInputFile(u"/KarvexInvoicer/IncompleteInvoices/20260001.txt"_s);
    for (int i = 0; i < 4; ++i) file.ReadLine();
    QCOMPARE(file.ReadString(), u"The "_s);
  }

  void anImageOfTheSameNumberIsReplacedAndItsBackupStays() {
    m_desk->Write(u"/CompletedInvoices/20260001.txt"_s,
                  "a much longer image of before, which must not shine through\r\n");
    QVERIFY(QDir(m_desk->Root.path()).mkpath(u"Backup/CompletedInvoices"_s));
    m_desk->Write(u"/Backup/CompletedInvoices/20260001.txt"_s, "copy");
    Invoice().LineCount = 0;
    SaveCompletedInvoice(Invoice(), m_desk->Disk, Today);
    QVERIFY(m_desk->Read(u"/CompletedInvoices/20260001.txt"_s).startsWith("20260001\r\n1001\r\n"));
    QVERIFY(!m_desk->Read(u"/CompletedInvoices/20260001.txt"_s).contains("before"));
    QCOMPARE(m_desk->Read(u"/Backup/CompletedInvoices/20260001.txt"_s), "copy");
  }

  void aFailedSaveLeavesTheOldImageWhole() {
    m_desk->Write(u"/CompletedInvoices/20260001.txt"_s, "old");
    const auto before = m_desk->Tree();
    m_desk->Device.Reset();
    m_desk->Device.FailAt(FailingDevice::Call::Flush, 1, 28);
    QCOMPARE(ErrorOf([&] { SaveCompletedInvoice(Invoice(), m_desk->Disk, Today); }), 61);
    QCOMPARE(m_desk->Tree(), before);
  }

  void aNumberThatLeavesItsFolderIsRefusedAndNothingIsWritten_data() {
    QTest::addColumn<QString>("number");
    QTest::newRow("up") << u"../../x"_s;
    QTest::newRow("backslash") << u"a\\b"_s;
    QTest::newRow("empty") << u""_s;
    QTest::newRow("blank") << u"  "_s;
  }
  void aNumberThatLeavesItsFolderIsRefusedAndNothingIsWritten() {
    QFETCH(const QString, number);
    Invoice().txtInvoiceNo = number;
    QCOMPARE(ErrorOf([&] { SaveCompletedInvoice(Invoice(), m_desk->Disk, Today); }), 64);
    QCOMPARE(ErrorOf([&] { SavePartialImage(Invoice(), m_desk->Disk, Today); }), 64);
    QVERIFY(m_desk->Tree().isEmpty());
  }
};

QTEST_GUILESS_MAIN(ImageTest)
#include "tst_image.moc"
