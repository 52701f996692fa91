// The ledgers that finished invoices leave, from the customer screen to the bytes: names and amounts that are wider
// than their fields, and accounts that share a ledger.

#include <QtWidgets>

#include "support/OneDay.h"

using namespace Qt::StringLiterals;

namespace {

const QString Ledger = u"/KVActiveAccounts/1001.txt"_s;

QByteArray Entry(const QByteArray& name, const QByteArray& text, const QByteArray& amount) {
  return Field(name, 45) + Field("1001", 25) + Field("3/7/2026", 15) + Field(text, 60) + Field(amount, 10);
}

}  // namespace

class ScreenLedgers : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void aLongNameAndALargeAmountAreCutAtTheirFields();
  void numbersThatDifferByTrailingBlanksShareALedger();
};

void ScreenLedgers::aLongNameAndALargeAmountAreCutAtTheirFields() {
  ProgramFixture program;
  OneDay::Stock(program.Tree);
  RecordText person;
  person.AcctNo = "1001";
  person.AcctName = "kept";
  person.Title = "Mr/Mrs";
  person.FirstName = "Maximilian-Otto";
  person.MiddleInitial = "Q";
  person.LastName = "Featherstonehaugh-Cholmon";
  person.AcctType = "Individual";
  program.Tree.Write(u"/CustomerData.txt"_s, person.Bytes());
  QVERIFY(program.StartAtMenu());
  OneDay::OpenInvoiceLines();
  const ScreenDriver invoice(u"frmInvoice"_s);
  invoice.Trigger(u"mnuManual"_s);
  invoice.Fill(u"txtManual_0"_s, u"Refinery"_s);
  invoice.Fill(u"txtManual_2"_s, u"1"_s);
  invoice.Fill(u"txtManual_1"_s, u"123456789.25"_s);
  invoice.Click(u"cmdPost_2"_s);
  OneDay::Finalize();
  invoice.Click(u"ckPrepaid"_s);
  invoice.Click(u"cmdInvoice_9"_s);
  QCOMPARE(invoice.Text(u"txtGrandTotal"_s), u"$123,456,789.25"_s);
  OneDay::Commit(program);

  const QByteArray name = "Mr/Mrs Maximilian-Otto Q. Featherstonehaugh-C";
  QCOMPARE(name.size(), 45);
  QCOMPARE(program.Tree.Bytes(Ledger), Entry(name, "Previous Balance", "$0.00") +
                                           Entry(name, "20260001", "123456789.") +
                                           Entry(name, "Payment Received", "$123,456,7"));
  QCOMPARE(program.Tree.Bytes(u"/KAPaymentRecords.txt"_s), Entry("kept", "", "$123,456,7"));
}

void ScreenLedgers::numbersThatDifferByTrailingBlanksShareALedger() {
  ProgramFixture program;
  OneDay::Stock(program.Tree);
  program.Tree.Write(u"/CustomerData.txt"_s, BusinessRecord("1001", "Acme Tools") + BusinessRecord("1002", "Bolt"));
  QVERIFY(program.StartAtMenu());
  OneDay::CommitInvoice(program);

  OneDay::GoToCustomers();
  const ScreenDriver customers(u"frmNewCustomer"_s);
  customers.Click(u"cmdNav_2"_s);
  QCOMPARE(customers.Text(u"txtCustomer_1"_s), u"Bolt"_s);
  // With the blank it is no duplicate of the first one's number, so nothing is asked.
  customers.Fill(u"txtCustomer_0"_s, u"1001 "_s);
  customers.Click(u"cmdCustomer_1"_s);
  QCOMPARE(customers.Control<QLineEdit>(u"txtCustomer_0"_s)->text(), u"1001 "_s);
  const ScreenDriver invoice(u"frmInvoice"_s);
  invoice.Click(u"cmdInvoice_0"_s);
  invoice.Trigger(u"mnuItems"_s);
  invoice.PickEntry(u"cboDescription_1"_s, u"Hammer"_s);
  invoice.Fill(u"txtUnits"_s, u"1"_s);
  invoice.Click(u"cmdPost_1"_s);
  OneDay::Finalize();
  OneDay::Commit(program);

  QCOMPARE(program.Tree.Bytes(Ledger), Entry("Acme Tools", "Previous Balance", "$0.00") +
                                           Entry("Acme Tools", "20260001", "25.44") +
                                           Entry("Bolt", "20260002", "12.72"));
  QCOMPARE(program.Tree.Bytes(u"/Backup"_s + Ledger), program.Tree.Bytes(Ledger));
  QVERIFY(!program.Tree.Exists(u"/KVActiveAccounts/1001 .txt"_s));
}

QTEST_MAIN(ScreenLedgers)
#include "tst_screenLedgers.moc"
