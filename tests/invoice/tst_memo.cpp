// The memo of an invoice and its default text.
#include <QtTest>

#include "invoice/InvoiceMemo.h"
#include "support/InvoiceFixture.h"

using namespace Qt::StringLiterals;

class MemoTest : public QObject {
  Q_OBJECT

  std::optional<InvoiceFixture> m_desk;

 private Q_SLOTS:
  void init() { m_desk.emplace(); }

  void everyFieldOfTheFileBecomesALine() {
    m_desk->Write(u"/InvoiceMemo.txt"_s, "Thank you, come again\r\n\"Open, daily\"\r\n");
    LoadInvoiceMemo(m_desk->Invoice, m_desk->Disk);
    QCOMPARE(m_desk->Invoice.txtMemo, u"Thank you\ncome again\nOpen, daily\n"_s);
    QCOMPARE(m_desk->Invoice.DefaultMemo, m_desk->Invoice.txtMemo);
    QVERIFY(m_desk->Invoice.ckAddMemo);
    QVERIFY(m_desk->Invoice.Controls.Visible.lblMemo);
    QVERIFY(m_desk->Invoice.Controls.Visible.ckAddMemo);
  }

  void aLoadAppendsToWhatIsThere() {
    m_desk->Write(u"/InvoiceMemo.txt"_s, "two\r\n");
    m_desk->Invoice.txtMemo = u"one\n"_s;
    LoadInvoiceMemo(m_desk->Invoice, m_desk->Disk);
    QCOMPARE(m_desk->Invoice.txtMemo, u"one\ntwo\n"_s);
    QCOMPARE(m_desk->Invoice.DefaultMemo, u"two\n"_s);
  }

  void withoutAFileMemoAndTickAreGone() {
    m_desk->Invoice.txtMemo = m_desk->Invoice.DefaultMemo = u"old"_s;
    m_desk->Invoice.ckAddMemo = true;
    m_desk->Invoice.Controls.Visible.lblMemo = m_desk->Invoice.Controls.Visible.ckAddMemo = true;
    LoadInvoiceMemo(m_desk->Invoice, m_desk->Disk);
    QVERIFY(m_desk->Invoice.txtMemo.isEmpty());
    QVERIFY(m_desk->Invoice.DefaultMemo.isEmpty());
    QVERIFY(!m_desk->Invoice.ckAddMemo);
    QVERIFY(!m_desk->Invoice.Controls.Visible.lblMemo);
    QVERIFY(!m_desk->Invoice.Controls.Visible.ckAddMemo);
  }

  void anEmptyFileTicksTheMemoAndAddsNothing() {
    m_desk->Write(u"/InvoiceMemo.txt"_s, "");
    LoadInvoiceMemo(m_desk->Invoice, m_desk->Disk);
    QVERIFY(m_desk->Invoice.txtMemo.isEmpty());
    QVERIFY(m_desk->Invoice.ckAddMemo);
  }

  void commandZeroEmptiesTheMemoForTyping() {
    m_desk->Invoice.txtMemo = u"old"_s;
    m_desk->Invoice.ckAddMemo = true;
    m_desk->Invoice.Controls.Visible.lblMemo = true;
    DoInvoiceMemoCommand(m_desk->Invoice, 0, m_desk->Disk);
    QVERIFY(m_desk->Invoice.txtMemo.isEmpty());
    QVERIFY(!m_desk->Invoice.Controls.Visible.lblMemo);
    QVERIFY(m_desk->Invoice.ckAddMemo);
    QCOMPARE(m_desk->Focus(), u"txtMemo"_s);
  }

  void commandOneReplacesTheMemoByTheDefault() {
    m_desk->Write(u"/InvoiceMemo.txt"_s, "default\r\n");
    m_desk->Invoice.txtMemo = u"old"_s;
    DoInvoiceMemoCommand(m_desk->Invoice, 1, m_desk->Disk);
    QCOMPARE(m_desk->Invoice.txtMemo, u"default\n"_s);
  }

  void commandTwoSavesTheMemoAsOnePrint() {
    m_desk->Write(u"/Backup/InvoiceMemo.txt"_s, "older\r\n");
    m_desk->Invoice.txtMemo = u"one\ntwo, three"_s;
    m_desk->Invoice.Controls.Enabled.cmdInvoiceMemo_1 = false;
    DoInvoiceMemoCommand(m_desk->Invoice, 2, m_desk->Disk);
    QCOMPARE(m_desk->Read(u"/InvoiceMemo.txt"_s), "one\r\ntwo, three\r\n");
    QVERIFY(!m_desk->Exists(u"/Backup/InvoiceMemo.txt"_s));
    QVERIFY(m_desk->Invoice.Controls.Visible.lblMemo);
    QVERIFY(m_desk->Invoice.Controls.Visible.ckAddMemo);
    QVERIFY(m_desk->Invoice.Controls.Enabled.cmdInvoiceMemo_1);
  }

  void anEmptyMemoIsNotSaved() {
    m_desk->Write(u"/InvoiceMemo.txt"_s, "kept\r\n");
    DoInvoiceMemoCommand(m_desk->Invoice, 2, m_desk->Disk);
    QCOMPARE(m_desk->Read(u"/InvoiceMemo.txt"_s), "kept\r\n");
    QVERIFY(!m_desk->Invoice.Controls.Visible.lblMemo);
  }

  void commandThreeDoesNothing() {
    m_desk->Invoice.txtMemo = u"kept"_s;
    DoInvoiceMemoCommand(m_desk->Invoice, 3, m_desk->Disk);
    QCOMPARE(m_desk->Invoice.txtMemo, u"kept"_s);
    QVERIFY(m_desk->Tree().isEmpty());
  }

  void withoutATickTheMemoOpensWithReloadAndSaveDisabledUntilAKey() {
    auto& enabled = m_desk->Invoice.Controls.Enabled;
    m_desk->Invoice.ckAddMemo = true;
    OpenMemo(m_desk->Invoice);
    QVERIFY(enabled.cmdInvoiceMemo_1 && enabled.cmdInvoiceMemo_2);
    m_desk->Invoice.ckAddMemo = false;
    OpenMemo(m_desk->Invoice);
    QVERIFY(!enabled.cmdInvoiceMemo_1 && !enabled.cmdInvoiceMemo_2);
    TypeInMemo(m_desk->Invoice);
    QVERIFY(!enabled.cmdInvoiceMemo_1 && enabled.cmdInvoiceMemo_2);
  }
};

QTEST_GUILESS_MAIN(MemoTest)
#include "tst_memo.moc"
