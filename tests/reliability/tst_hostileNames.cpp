// Account, invoice and template names that no file should have: typed or pasted by the user, or read from a damaged or
// foreign file. Nothing outside the data root is ever written, made or deleted; what can't name a file is refused with
// a box; and the next start finds a sound tree.

#include <QtWidgets>

#include "reliability/AnyAnswer.h"
#include "reliability/MemoryDisk.h"
#include "reliability/Surroundings.h"
#include "support/OneDay.h"

using namespace Qt::StringLiterals;

namespace {

[[maybe_unused]] const MemoryDisk Quick;

/// What comes of a template of that name. Its file is the folder's name with this behind it, so that two dots alone are
/// a part of a name there.
enum class Template { Saved, Refused, NoFolder };

struct Name {
  const char* Label;
  QString Text;
  bool CanNameAFile;
  /// What a paste leaves of it in the box of the account number, which takes none of , & . \ * / ? but behind a number.
  QString InAccountBox;
  /// And in that of the invoice number, which takes digits, and a point behind them.
  QString InNumberBox;
  Template As = Template::Saved;
};

const QList<Name>& Names() {
  static const QList<Name> names{
      {"the folder above", u".."_s, false, u""_s, u""_s},
      {"the folder itself", u"."_s, false, u""_s, u""_s},
      {"up and out", u"../../secret"_s, false, u"secret"_s, u""_s, Template::Refused},
      {"up and out, backslashes", u"..\\..\\secret"_s, false, u"secret"_s, u""_s, Template::Refused},
      {"through a folder", u"x/../../secret"_s, false, u"xsecret"_s, u""_s, Template::Refused},
      {"a separator", u"10/01"_s, false, u"10/01"_s, u"1001"_s, Template::NoFolder},
      {"a backslash", u"10\\01"_s, false, u"10\\01"_s, u"1001"_s, Template::NoFolder},
      {"from the root", u"/secret"_s, false, u"secret"_s, u""_s},
      {"a zero byte", u"10"_s + QChar::Null + u"01"_s, false, u"1001"_s, u"1001"_s, Template::Refused},
      {"a device's name", u"CON"_s, true, u"CON"_s, u""_s},
      {"another device's name", u"NUL"_s, true, u"NUL"_s, u""_s},
      {"a device's name with an ending", u"COM1.txt"_s, true, u"COM1txt"_s, u"1."_s},
      {"three dots", u"..."_s, true, u""_s, u""_s},
      {"hidden", u".1001"_s, true, u"1001"_s, u"1001"_s},
      {"an option", u"-rf"_s, true, u"-rf"_s, u""_s},
      {"a home", u"~root"_s, true, u"~root"_s, u""_s},
      {"wildcards", u"*?[a]"_s, true, u"[a]"_s, u""_s},
      {"a percent sign", u"%1%2%n"_s, true, u"%1%2%n"_s, u"12"_s},
      {"the new file's ending", u"1001.new"_s, true, u"1001.new"_s, u"1001."_s}};
  return names;
}

void AddNames() {
  QTest::addColumn<QString>("name");
  QTest::addColumn<bool>("safe");
  for (const Name& name : Names()) QTest::newRow(name.Label) << name.Text << name.CanNameAFile;
}

void AddPastes(QString Name::*left) {
  QTest::addColumn<QString>("name");
  QTest::addColumn<QString>("left");
  for (const Name& name : Names()) QTest::newRow(name.Label) << name.Text << name.*left;
}

QByteArray CustomerOf(const QString& account) {
  return BusinessRecord(account.toLatin1(), "Acme Tools");
}

/// A day's tree, its customer under another account.
void Stock(const TemporaryTree& tree, const QString& account) {
  OneDay::Stock(tree);
  tree.Write(u"/CustomerData.txt"_s, CustomerOf(account));
}

QStringList Sorted(QStringList names) {
  names.sort();
  return names;
}

void PasteInto(const ScreenDriver& screen, const QString& box, const QString& text) {
  screen.Fill(box, QString());
  screen.Paste(text);
}

/// A partial invoice as a foreign hand would leave it: the number that its first row lists it by, and the one that its
/// recall fills in.
QByteArray PartialOf(const QString& listed, const QString& recalled) {
  const QByteArray name = recalled.toLatin1();
  return listed.toLatin1() + "\r\n1001\r\nAcme Tools\r\n3/5/2026\r\n" +
         "\"Acme Tools\"\r\n\"1 Dock Rd\"\r\n\"\"\r\n\"Salem\"\r\n\"MA\"\r\n\"01970\"\r\n" +
         "\"\"\r\n\"\"\r\n\"\"\r\n\"\"\r\n\"\"\r\n\"\"\r\n" + name +
         "\r\n1001\r\nPO 5\r\nAnn\r\n1\r\n\r\nSurvey\r\n3/1/2026\r\n$80.00\r\n$80.00\r\nFalse\r\n";
}

/// The program on a tree of its own, and an eye on what stands around the tree.
class Fenced {
 public:
  /// At the main menu.
  bool Start() {
    m_around.Watch({Program.Tree.Root()});
    return Program.StartAtMenu();
  }
  /// What came, went or changed outside since the start began.
  QString Outside() const { return m_around.Changes().join(u'\n'); }

 private:
  Surroundings m_around;

 public:
  ProgramFixture Program;
};

}  // namespace

class HostileNames : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void anAccountOfTheFileStaysInTheTree_data() { AddNames(); }
  void anAccountOfTheFileStaysInTheTree();
  void anAccountOfTheFileWritesItsNotesInTheTree_data() { AddNames(); }
  void anAccountOfTheFileWritesItsNotesInTheTree();
  void aPastedAccountStaysInTheTree_data() { AddPastes(&Name::InAccountBox); }
  void aPastedAccountStaysInTheTree();
  void aDeletedAccountTakesNothingFromOutside_data() { AddNames(); }
  void aDeletedAccountTakesNothingFromOutside();
  void aPastedInvoiceNumberStaysInTheTree_data() { AddPastes(&Name::InNumberBox); }
  void aPastedInvoiceNumberStaysInTheTree();
  void aPartialInvoiceOfAForeignNumberStaysInTheTree_data() { AddNames(); }
  void aPartialInvoiceOfAForeignNumberStaysInTheTree();
  void aPartialInvoiceListedUnderAForeignNumberTakesNothingFromOutside_data() { AddNames(); }
  void aPartialInvoiceListedUnderAForeignNumberTakesNothingFromOutside();
  void aTemplateStaysInTheTree_data();
  void aTemplateStaysInTheTree();
  void aNameOfThreeHundredCharactersIsToldOrCut();
  void blanksAroundAnAccountAreNoPartOfItsFiles();
};

void HostileNames::anAccountOfTheFileStaysInTheTree() {
  QFETCH(QString, name);
  QFETCH(bool, safe);
  Fenced fenced;
  ProgramFixture& program = fenced.Program;
  Stock(program.Tree, name);
  QVERIFY(fenced.Start());
  const QString folder = u"/AuxFiles/"_s + name + u"/AuxFile5"_s;
  const QString ledger = u"/KVActiveAccounts/"_s + name + u".txt"_s;
  if (safe) {
    QVERIFY(program.Tree.Exists(folder));
    OneDay::CommitInvoice(program);
    QCOMPARE(program.Tree.Size(ledger), 2 * 155);
    QCOMPARE(program.Tree.Bytes(u"/Backup"_s + ledger), program.Tree.Bytes(ledger));
    QCOMPARE(program.Tree.Bytes(u"/KVInvoiceNo.txt"_s), "20260002\r\n");
  } else {
    QCOMPARE(program.Tree.List(u"/AuxFiles"_s), QStringList{});
    // The way to the invoice saves the customer first, and that says what is wrong.
    OneDay::GoToCustomers();
    program.Answers.Ok({}, u"Invalid Account Number"_s);
    ScreenDriver(u"frmNewCustomer"_s).Click(u"cmdCustomer_1"_s);
    QVERIFY(ScreenDriver::IsShown(u"frmNewCustomer"_s));
    QCOMPARE(program.Tree.List(u"/KVActiveAccounts"_s), QStringList{});
    QCOMPARE(program.Tree.Bytes(u"/CustomerData.txt"_s), CustomerOf(name));
  }
  QCOMPARE(fenced.Outside(), QString());
  program.End();
  QCOMPARE(fenced.Outside(), QString());
  QVERIFY(program.Start());
}

void HostileNames::anAccountOfTheFileWritesItsNotesInTheTree() {
  QFETCH(QString, name);
  QFETCH(bool, safe);
  Fenced fenced;
  ProgramFixture& program = fenced.Program;
  Stock(program.Tree, name);
  QVERIFY(fenced.Start());
  OneDay::GoToCustomers();
  const ScreenDriver screen(u"frmNewCustomer"_s);
  screen.Trigger(u"mnuAux"_s);
  screen.Click(u"txtAux_0"_s);
  screen.Paste(u"a note"_s);
  if (!safe) program.Answers.Ok();
  screen.Click(u"cmdSaveAux_1"_s);
  QVERIFY(program.Answers.AllUsed());
  if (safe) {
    QCOMPARE(program.Tree.Bytes(u"/AuxFiles/"_s + name + u"/AuxFile0/Data.txt"_s), "a note\r\n");
  } else {
    QVERIFY(program.Answers.Last().Text.startsWith(u"The account number \"%1\" names the folder"_s.arg(name)));
    QCOMPARE(program.Tree.List(u"/AuxFiles"_s), QStringList{});
  }
  QCOMPARE(fenced.Outside(), QString());
  QVERIFY(!program.Running().HasEnded());
}

void HostileNames::aPastedAccountStaysInTheTree() {
  QFETCH(const QString, name);
  QFETCH(const QString, left);
  Fenced fenced;
  ProgramFixture& program = fenced.Program;
  Stock(program.Tree, u"7"_s);
  QVERIFY(fenced.Start());
  const QByteArray before = program.Tree.Bytes(u"/CustomerData.txt"_s);
  OneDay::GoToCustomers();
  const ScreenDriver screen(u"frmNewCustomer"_s);
  screen.Trigger(u"mnuAdd"_s);
  PasteInto(screen, u"txtCustomer_0"_s, name);
  QCOMPARE(screen.Text(u"txtCustomer_0"_s), left);
  PasteInto(screen, u"txtCustomer_1"_s, u"Bell Farm"_s);
  PasteInto(screen, u"txtCustomer_6"_s, u"555-0123"_s);
  const bool refused = !left.isEmpty() && !CanNameAFile(left);
  if (refused) program.Answers.Ok({}, u"Invalid Account Number"_s);
  if (left.isEmpty()) program.Answers.Ok(u"Telephone Number will be used as Acct No."_s, u"Account not Entered"_s);
  screen.Click(u"cmdNav_0"_s);
  QVERIFY(program.Answers.AllUsed());
  QVERIFY(!program.Running().HasEnded());
  const QString account = left.isEmpty() ? u"555-0123"_s : left;
  const QByteArray stored = Field(account.toLatin1(), 20) + Field("Bell Farm", 45);
  const QByteArray after = program.Tree.Bytes(u"/CustomerData.txt"_s);
  QCOMPARE(after.first(328), before);
  QCOMPARE(after.size(), refused ? 328 : 2 * 328);
  QCOMPARE(after.mid(328, stored.size()), refused ? QByteArray() : stored);
  // What was stored names the folders that the next start makes.
  QVERIFY(program.Start());
  QStringList folders{u"7/"_s};
  if (!refused) folders << account + u'/';
  QCOMPARE(program.Tree.List(u"/AuxFiles"_s), Sorted(folders));
  QCOMPARE(fenced.Outside(), QString());
}

void HostileNames::aDeletedAccountTakesNothingFromOutside() {
  QFETCH(QString, name);
  QFETCH(bool, safe);
  Fenced fenced;
  ProgramFixture& program = fenced.Program;
  Stock(program.Tree, name);
  const QByteArray other = CustomerOf(u"7"_s);
  program.Tree.Write(u"/CustomerData.txt"_s, CustomerOf(name) + other);
  if (safe) program.Tree.Write(u"/KVActiveAccounts/"_s + name + u".txt"_s, QByteArray(155, ' '));
  program.Tree.Write(u"/secret.txt"_s, "of the root");
  QVERIFY(fenced.Start());
  OneDay::GoToCustomers();
  program.Answers.Yes(u"Delete this Customer"_s);
  ScreenDriver(u"frmNewCustomer"_s).Trigger(u"mnuDelete"_s);
  QVERIFY(program.Answers.AllUsed());
  QCOMPARE(fenced.Outside(), QString());
  QCOMPARE(program.Tree.Bytes(u"/secret.txt"_s), "of the root");
  QCOMPARE(program.Tree.Bytes(u"/CustomerData.txt"_s), other);
  if (safe) QVERIFY(!program.Tree.Exists(u"/KVActiveAccounts/"_s + name + u".txt"_s));
}

void HostileNames::aPastedInvoiceNumberStaysInTheTree() {
  QFETCH(const QString, name);
  QFETCH(const QString, left);
  Fenced fenced;
  ProgramFixture& program = fenced.Program;
  OneDay::Stock(program.Tree);
  QVERIFY(fenced.Start());
  OneDay::ComposeInvoice();
  const ScreenDriver invoice(u"frmInvoice"_s);
  invoice.Trigger(u"mnuSetup"_s);
  PasteInto(invoice, u"txtInvoiceNo"_s, name);
  QCOMPARE(invoice.Text(u"txtInvoiceNo"_s), left);
  const auto before = program.Tree.Everything();
  if (left.isEmpty()) {
    // Told as the box is left and by Continue, and as it is left again, which keeps the save from running.
    program.Answers.Ok(u"Enter an Invoice Number"_s);
    program.Answers.Ok(u"You have not entered an Invoice Number"_s);
  }
  invoice.Click(u"cmdInvoice_0"_s);
  QVERIFY(program.Answers.AllUsed());
  if (left.isEmpty()) {
    program.Answers.Ok(u"Enter an Invoice Number"_s);
  } else {
    OneDay::AnswerPartialSave(program);
  }
  invoice.Click(u"cmdSave"_s);
  QVERIFY(program.Answers.AllUsed());
  QVERIFY(!program.Running().HasEnded());
  QCOMPARE(fenced.Outside(), QString());
  if (left.isEmpty()) {
    QCOMPARE(program.Tree.Everything(), before);
  } else {
    const QString folder = u"/KarvexInvoicer/IncompleteInvoices"_s;
    QCOMPARE(program.Tree.List(folder), QStringList{left + u".txt"_s});
    QVERIFY(program.Tree.Bytes(folder + u'/' + left + u".txt"_s)
                .startsWith(left.toLatin1() + "\r\n1001\r\nAcme Tools\r\n"));
  }
}

void HostileNames::aPartialInvoiceOfAForeignNumberStaysInTheTree() {
  QFETCH(QString, name);
  QFETCH(bool, safe);
  for (const bool commits : {false, true}) {
    Fenced fenced;
    ProgramFixture& program = fenced.Program;
    OneDay::Stock(program.Tree);
    const QString file = u"/KarvexInvoicer/IncompleteInvoices/20260009.txt"_s;
    const QByteArray before = PartialOf(u"20260009"_s, name);
    program.Tree.Write(file, before);
    program.Tree.Write(u"/secret.txt"_s, "of the root");
    QVERIFY(fenced.Start());
    const ScreenDriver menu(u"frmStartup"_s);
    menu.Click(u"optMainMenuSub_1"_s);
    menu.Click(u"cmdGoto"_s);
    auto agree = std::make_unique<AnyAnswer>(program.Answers);
    ScreenDriver(u"frmIncomplete"_s).DoubleClickRow(u"fgIncomplete"_s, 1);
    const ScreenDriver invoice(u"frmInvoice"_s);
    invoice.Click(u"cmdInvoice_0"_s);
    if (commits) {
      // An unsafe number gets no further than this.
      QCOMPARE(invoice.IsEnabled(u"cmdPrint"_s), safe);
      if (safe) {
        OneDay::Finalize();
        invoice.Click(u"cmdInvoiceContinue"_s);
      }
    } else {
      invoice.Click(u"cmdSave"_s);
    }
    agree.reset();
    QVERIFY(!program.Running().HasEnded());
    QCOMPARE(fenced.Outside(), QString());
    QCOMPARE(program.Tree.Bytes(u"/secret.txt"_s), "of the root");
    // An unsafe number leaves the file alone; a safe one is saved, or committed, under its own name.
    const QString folder = commits ? u"/CompletedInvoices/"_s : u"/KarvexInvoicer/IncompleteInvoices/"_s;
    if (safe) {
      QVERIFY2(program.Tree.Exists(folder + name + u".txt"_s), qPrintable(program.Answers.Last().Text));
    } else {
      QCOMPARE(program.Tree.Bytes(file), before);
      QCOMPARE(program.Tree.List(u"/CompletedInvoices"_s), QStringList{});
    }
  }
}

void HostileNames::aPartialInvoiceListedUnderAForeignNumberTakesNothingFromOutside() {
  QFETCH(const QString, name);
  QFETCH(const bool, safe);
  Fenced fenced;
  ProgramFixture& program = fenced.Program;
  OneDay::Stock(program.Tree);
  const QString file = u"/KarvexInvoicer/IncompleteInvoices/20260009.txt"_s;
  program.Tree.Write(file, PartialOf(name, u"20260009"_s));
  program.Tree.Write(u"/secret.txt"_s, "of the root");
  QVERIFY(fenced.Start());
  const auto before = program.Tree.Everything();
  const ScreenDriver menu(u"frmStartup"_s);
  menu.Click(u"optMainMenuSub_1"_s);
  menu.Click(u"cmdGoto"_s);
  const ScreenDriver partials(u"frmIncomplete"_s);
  const auto told = [&] {
    return program.Answers.AllUsed() &&
           program.Answers.Last().Text.contains(safe ? u"(error 53)"_s : u"\"%1\" can't name a file."_s.arg(name));
  };
  // Its recall and its purge go by the listed number, and there is no such file.
  partials.SelectRow(u"fgIncomplete"_s, 1);
  program.Answers.Ok();
  partials.Click(u"Command1_1"_s);
  QVERIFY2(told(), qPrintable(program.Answers.Last().Text));
  QVERIFY(ScreenDriver::IsShown(u"frmIncomplete"_s));
  QCOMPARE(program.Tree.Everything(), before);
  partials.SelectRow(u"fgIncomplete"_s, 1);
  program.Answers.Yes(u"This will Purge Incomplete Invoice# "_s + name);
  program.Answers.Yes(u"Are You Sure?"_s);
  if (!safe) program.Answers.Ok();
  partials.Click(u"Command1_3"_s);
  QVERIFY(program.Answers.AllUsed());
  if (!safe) QVERIFY2(told(), qPrintable(program.Answers.Last().Text));
  // A purge that went through leads back to the menu.
  QCOMPARE(ScreenDriver::IsShown(u"frmStartup"_s), safe);
  QVERIFY(!program.Running().HasEnded());
  QCOMPARE(program.Tree.Everything(), before);
  QCOMPARE(fenced.Outside(), QString());
}

void HostileNames::aTemplateStaysInTheTree_data() {
  QTest::addColumn<QString>("name");
  QTest::addColumn<Template>("as");
  for (const Name& name : Names()) {
    for (const QString& prefix : {u""_s, u"/"_s, u"\\"_s, u"/../"_s}) {
      QTest::addRow("%s behind \"%s\"", name.Label, qPrintable(prefix))
          << prefix + name.Text << (prefix == u"/../"_s ? Template::Refused : name.As);
    }
  }
}

void HostileNames::aTemplateStaysInTheTree() {
  QFETCH(const QString, name);
  QFETCH(const Template, as);
  Surroundings around;
  InvoiceBench bench;
  bench.Tree.MakeFolder(u"/KarvexInvoicer/Templates/Invoices"_s);
  around.Watch({bench.Tree.Root()});
  bench.OpenAtLines();
  bench.PostManual(u"Crate"_s, u"1"_s, u"10"_s);
  bench.On().Trigger(u"mnuCreate"_s);
  auto expected = bench.Tree.Everything();
  bench.Answers.Dialog([&](QDialog& dialog) {
    auto* box = qobject_cast<QInputDialog*>(&dialog);
    QVERIFY(box != nullptr);
    box->setTextValue(name);
    box->accept();
  });
  if (as == Template::Refused) {
    bench.Answers.Ok(
        u"The name of the Template names its file, and \"%1\" can't name a file of the template folder."_s.arg(name));
  }
  QVERIFY(bench.On().IsEnabled(u"cmdTemplate_2"_s));
  bench.On().Click(u"cmdTemplate_2"_s);
  QVERIFY(bench.Answers.AllUsed());
  // The program's box on an error tells that the folder isn't there.
  QCOMPARE(bench.Around.Errors, as == Template::NoFolder ? QList<int>{76} : QList<int>{});
  if (as == Template::Saved) {
    const QString file = u"/KarvexInvoicer/Templates/Invoices"_s + name + u".txt"_s;
    expected.insert(QString(file).replace(u'\\', u'/').replace(u"//"_s, u"/"_s),
                    Field("1", 10) + Field("Crate", 45) + Field("10.00", 10) + Field("False", 5));
  }
  QCOMPARE(bench.Tree.Everything(), expected);
  QCOMPARE(around.Changes().join(u'\n'), QString());
}

void HostileNames::aNameOfThreeHundredCharactersIsToldOrCut() {
  Surroundings around;
  {
    InvoiceBench bench;
    bench.Tree.MakeFolder(u"/KarvexInvoicer/Templates/Invoices"_s);
    around.Watch({bench.Tree.Root()});
    bench.OpenAtLines();
    bench.PostManual(u"Crate"_s, u"1"_s, u"10"_s);
    bench.On().Trigger(u"mnuCreate"_s);
    const auto before = bench.Tree.Everything();
    bench.Answers.Dialog([](QDialog& dialog) {
      auto* box = qobject_cast<QInputDialog*>(&dialog);
      QVERIFY(box != nullptr);
      box->setTextValue(QString(300, u'W'));
      box->accept();
    });
    bench.On().Click(u"cmdTemplate_2"_s);
    QCOMPARE(bench.Around.Errors, QList<int>{64});
    QCOMPARE(bench.Tree.Everything(), before);
    QCOMPARE(bench.Row(1).at(1), u"Crate"_s);
    QCOMPARE(around.Changes().join(u'\n'), QString());
  }
  ProgramFixture program;
  OneDay::Stock(program.Tree);
  QVERIFY(program.StartAtMenu());
  OneDay::ComposeInvoice();
  const ScreenDriver invoice(u"frmInvoice"_s);
  invoice.Trigger(u"mnuSetup"_s);
  PasteInto(invoice, u"txtInvoiceNo"_s, QString(300, u'9'));
  const auto before = program.Tree.Everything();
  program.Answers.Ok();
  invoice.Click(u"cmdSave"_s);
  QVERIFY(program.Answers.Last().Text.endsWith(u"can't name a file."_s));
  QCOMPARE(program.Tree.Everything(), before);
}

void HostileNames::blanksAroundAnAccountAreNoPartOfItsFiles() {
  ProgramFixture program;
  Stock(program.Tree, u"  10 01  "_s);
  QVERIFY(program.StartAtMenu());
  QCOMPARE(program.Tree.List(u"/AuxFiles"_s), QStringList{u"10 01/"_s});
  OneDay::CommitInvoice(program);
  QCOMPARE(program.Tree.List(u"/KVActiveAccounts"_s), QStringList{u"10 01.txt"_s});
  QCOMPARE(program.Tree.List(u"/Backup/KVActiveAccounts"_s), QStringList{u"10 01.txt"_s});
}

QTEST_MAIN(HostileNames)
#include "tst_hostileNames.moc"
