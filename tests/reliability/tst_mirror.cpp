// Every file that is read at start and can come back from the Backup folder, with the file and its copy each missing,
// empty, cut short, damaged by one bit, older or good: which of the two is read, what it says, and which bytes stand on
// the disk after the run. A file that is there is never fetched from the copy, whatever it holds; one that can't be
// read ends the program without the exit backup, so that the copy stays.

#include <QtWidgets>

#include "customers/CustomerRecords.h"
#include "reliability/MemoryDisk.h"
#include "support/InvoiceBench.h"
#include "support/ProgramFixture.h"
#include "support/SetupScreen.h"

using namespace Qt::StringLiterals;

namespace {

[[maybe_unused]] const MemoryDisk Quick;

/// What a place may hold, and what the program makes of it where it reads it.
struct State {
  const char* Name;
  std::optional<QByteArray> Bytes;  ///< Nothing: no file.
  bool Loads;
  QString Seen;  ///< On the screen that shows it.
};

struct Subject {
  QString File;
  bool AtExit;  ///< One of the 18 that the exit backup copies.
  std::function<QString(ProgramFixture&)> See;
  QList<State> States;
};

/// One bit of one byte changed.
QByteArray Flipped(QByteArray bytes, const char* before, char mask) {
  const qsizetype at = bytes.indexOf(before);
  if (at < 0) qFatal("the byte to be changed isn't there");
  bytes[at] = static_cast<char>(bytes[at] ^ mask);
  return bytes;
}

template <typename Kind>
Kind* On(ProgramFixture& program, ScreenName screen, const char* name) {
  program.Running().Show(screen);
  return program.Built(screen)->findChild<Kind*>(QString::fromLatin1(name));
}

auto SetupText(const char* name) {
  return [name](ProgramFixture& program) { return On<QLineEdit>(program, ScreenName::frmSetup, name)->text(); };
}
auto SetupLabel(const char* name) {
  return [name](ProgramFixture& program) { return On<QLabel>(program, ScreenName::frmSetup, name)->text(); };
}
auto SetupCombo(const char* name) {
  return [name](ProgramFixture& program) { return On<QComboBox>(program, ScreenName::frmSetup, name)->currentText(); };
}
auto SetupTick(const char* name) {
  return [name](ProgramFixture& program) {
    return On<QCheckBox>(program, ScreenName::frmSetup, name)->isChecked() ? u"ticked"_s : u"clear"_s;
  };
}
/// The first row's cell of a grid of the catalogue.
auto CatalogueCell(const char* grid, int column) {
  return [grid, column](ProgramFixture& program) {
    return On<QTableView>(program, ScreenName::frmServices, grid)->model()->index(0, column).data().toString();
  };
}
QString CustomersFolders(ProgramFixture& program) {
  return program.Tree.List(u"/AuxFiles"_s).join(u'|');
}
QString LogoShown(ProgramFixture& program) {
  const bool shown = !On<QLabel>(program, ScreenName::frmSetup, "Image3")->pixmap(Qt::ReturnByValue).isNull();
  return shown ? u"a picture"_s : u"none"_s;
}
QString Nothing(ProgramFixture&) {
  return {};
}

QByteArray Logo(const QByteArray& path) {
  return '"' + path + "\"\r\n";
}

/// The user's own picture, outside every tree.
const TemporaryTree& Pictures() {
  static const TemporaryTree pictures;
  return pictures;
}

Subject Profile() {
  const QByteArray rest = ",\"12 Grove Road\",\"\",\"Ocala\",\"FL\",\"34470\",\"555\",\"\",\"7\"\r\n";
  const QByteArray good = "\"Grove\"" + rest;
  return {u"/MyBusinessData.txt"_s,
          true,
          SetupText("txtBusiness_0"),
          {{"good", good, true, u"Grove"_s},
           {"older", "\"Orchard\"" + rest, true, u"Orchard"_s},
           {"missing", {}, true, u""_s},
           {"empty", "", false, {}},
           {"cut", good.left(30), false, {}},
           {"text", Flipped(good, "Grove", 0x20), true, u"grove"_s},
           {"mark", Flipped(good, "\",\"12", 0x01), false, {}}}};
}

Subject Settings() {
  const QByteArray good = "1,0,0,0,0,\"0.0\",\"0\",#TRUE#,#FALSE#,\"$5.00\",\"$0.00\"\r\n";
  return {u"/KarvexInvoicerSettings.txt"_s,
          true,
          SetupText("txtGradulated_0"),
          {{"good", good, true, u"$5.00"_s},
           {"older", "1,0,0,0,0,\"0.0\",\"0\",#TRUE#,#FALSE#,\"$4.00\",\"$0.00\"\r\n", true, u"$4.00"_s},
           {"missing", {}, true, u"$0.00"_s},
           {"empty", "", false, {}},
           {"cut", good.left(24), false, {}},
           {"text", Flipped(good, "5.00", 0x02), true, u"$7.00"_s},
           {"number", Flipped(good, "0,\"0.0", 0x40), false, {}}}};
}

Subject Colours() {
  const QByteArray good = "0\r\n0\r\n\"Arial\"\r\n#TRUE#\r\n3\r\n";
  return {u"/PrintColors.txt"_s,
          true,
          SetupLabel("lblFont"),
          {{"good", good, true, u"Arial"_s},
           {"older", "0\r\n0\r\n\"Courier\"\r\n#TRUE#\r\n3\r\n", true, u"Courier"_s},
           {"missing", {}, true, u"Arial"_s},
           {"empty", "", false, {}},
           {"cut", good.left(9), false, {}},
           {"text", Flipped(good, "Arial", 0x08), true, u"Irial"_s},
           {"number", Flipped(good, "3", 0x40), false, {}}}};
}

Subject Taxes() {
  const QByteArray good = "\"GST\",\"Tax\",\"6.0\",\"1.0\",1,0\r\n";
  return {u"/TaxSettings.txt"_s,
          false,
          SetupCombo("cboTaxHeading1"),
          {{"good", good, true, u"GST"_s},
           {"older", "\"VAT Tax\",\"Tax\",\"6.0\",\"1.0\",1,0\r\n", true, u"VAT Tax"_s},
           {"missing", {}, true, u"Sales Tax"_s},
           {"empty", "", false, {}},
           {"cut", good.left(15), false, {}},
           {"text", Flipped(good, "GST", 0x01), true, u"FST"_s},
           {"number", Flipped(good, "1,0", 0x40), false, {}}}};
}

Subject Phone() {
  const QByteArray good = "#TRUE#\r\n1\r\n";
  return {u"/Phone.txt"_s,
          false,
          SetupTick("ckPhone"),
          {{"good", good, true, u"ticked"_s},
           {"older", "#FALSE#\r\n1\r\n", true, u"clear"_s},
           {"missing", {}, true, u"clear"_s},
           {"empty", "", false, {}},
           {"cut", good.left(8), false, {}},
           {"number", Flipped(good, "1", 0x40), false, {}},
           {"text", Flipped(good, "RUE", 0x01), false, {}}}};
}

Subject CallerId() {
  const QByteArray good = "#TRUE#\r\n";
  return {u"/CallID.txt"_s,
          false,
          Nothing,
          {{"good", good, true, {}},
           {"older", "#FALSE#\r\n", true, {}},
           {"missing", {}, true, {}},
           {"empty", "", false, {}},
           {"cut", good.left(3), false, {}},
           {"text", Flipped(good, "RUE", 0x01), false, {}}}};
}

Subject LogoPath() {
  const QByteArray path = Pictures().Path(u"/logo.png"_s).toUtf8();
  const QByteArray good = Logo(path);
  return {u"/CompanyLogo.txt"_s,
          true,
          LogoShown,
          {{"good", good, true, u"a picture"_s},
           {"older", Logo("/no/such/logo.png"), true, u"none"_s},
           {"missing", {}, true, u"none"_s},
           {"empty", "", false, {}},
           {"cut", good.left(good.size() / 2), true, u"none"_s},
           {"text", Flipped(good, "logo.png", 0x01), true, u"none"_s}}};
}

Subject LogoSize() {
  const QByteArray good = "1440,720\r\n";
  return {u"/LogoSettings.txt"_s,
          true,
          Nothing,
          {{"good", good, true, {}},
           {"older", "900,900\r\n", true, {}},
           {"missing", {}, true, {}},
           {"empty", "", false, {}},
           {"cut", good.left(4), false, {}},
           {"number", Flipped(good, "440", 0x40), false, {}}}};
}

Subject Customers() {
  const QByteArray good = BusinessRecord("1001", "Acme") + BusinessRecord("1002", "Bell");
  return {u"/CustomerData.txt"_s,
          true,
          CustomersFolders,
          {{"good", good, true, u"1001/|1002/"_s},
           {"older", BusinessRecord("1001", "Acme"), true, u"1001/"_s},
           {"missing", {}, true, u""_s},
           {"empty", "", true, u""_s},
           // A last record of which less than half is left doesn't count.
           {"cut", good.left(328 + 100), true, u"1001/"_s},
           {"text", Flipped(good, "1001", 0x02), true, u"1002/|3001/"_s}}};
}

Subject Services() {
  const QByteArray good = Field("Repair", 60) + Field("$10.00", 10) + Bytes16(1);
  return {u"/Services.txt"_s,
          true,
          CatalogueCell("fgServices", 0),
          {{"good", good, true, u"Repair"_s},
           {"older", Field("Mowing", 60) + Field("$9.00", 10) + Bytes16(1), true, u"Mowing"_s},
           {"missing", {}, true, u""_s},
           {"empty", "", true, u""_s},
           {"cut", good.left(66), true, u"Repair"_s},
           {"text", Flipped(good, "Repair", 0x20), true, u"repair"_s},
           {"number", Flipped(good, "10.00", 0x40), true, u"Repair"_s}}};
}

Subject Items() {
  const QByteArray good = Field("Hammer", 50) + Field("Tools", 20) + Bytes64(0) + Bytes64(120000) + Bytes16(10) +
                          Bytes64(0) + Bytes32(0) + Bytes16(0) + Bytes16(0);
  QByteArray fewer = good;
  fewer.replace(86, 2, Bytes16(26));
  return {u"/KVInventoriedItems.txt"_s,
          true,
          [](ProgramFixture& program) {
            return CatalogueCell("fgItems", 0)(program) + u' ' + CatalogueCell("fgItems", 4)(program);
          },
          {{"good", good, true, u"Hammer 10"_s},
           {"older", Field("Hammers", 50) + good.mid(50), true, u"Hammers 10"_s},
           {"missing", {}, true, u" "_s},
           {"empty", "", true, u" "_s},
           {"cut", good.left(80), true, u"Hammer 0"_s},
           {"text", Flipped(good, "Hammer", 0x20), true, u"hammer 10"_s},
           {"number", fewer, true, u"Hammer 26"_s}}};
}

Subject CustomItems() {
  const QByteArray good = Field("Shelf", 50) + Bytes64(1000000) + Bytes64(900000) + Bytes32(3);
  return {u"/CustomItems.txt"_s,
          true,
          CatalogueCell("fgCustom", 0),
          {{"good", good, true, u"Shelf"_s},
           {"older", Field("Shelves", 50) + good.mid(50), true, u"Shelves"_s},
           {"missing", {}, true, u""_s},
           {"empty", "", true, u""_s},
           {"cut", good.left(55), true, u"Shelf"_s},
           {"text", Flipped(good, "Shelf", 0x20), true, u"shelf"_s}}};
}

Subject Labor() {
  const QByteArray rest = "\"\",\"$0.00\"\r\n\"\",\"$0.00\"\r\n";
  const QByteArray good = "\"General\",\"$45.00\"\r\n" + rest;
  return {
      u"/Labor.txt"_s,
      true,
      [](ProgramFixture& program) { return On<QLineEdit>(program, ScreenName::frmServices, "txtLaborRate_0")->text(); },
      {{"good", good, true, u"$45.00"_s},
       {"older", "\"General\",\"$40.00\"\r\n" + rest, true, u"$40.00"_s},
       {"missing", {}, true, u"$0.00"_s},
       {"empty", "", false, {}},
       {"cut", good.left(32), false, {}},
       {"number", Flipped(good, "45", 0x01), true, u"$55.00"_s}}};
}

Subject Carrier() {
  return {u"/ShipVia.txt"_s,
          false,
          Nothing,
          {{"good", "Truck\r\n", true, {}},
           {"older", "Rail\r\n", true, {}},
           {"missing", {}, true, {}},
           {"empty", "", false, {}},
           {"cut", "Tr", true, {}},
           {"text", "truck\r\n", true, {}}}};
}

Subject Memo() {
  return {u"/InvoiceMemo.txt"_s,
          true,
          Nothing,
          {{"good", "Thank you\r\n", true, {}},
           {"older", "Thanks\r\n", true, {}},
           {"missing", {}, true, {}},
           {"empty", "", true, {}},
           {"cut", "Tha", true, {}},
           {"text", "thank you\r\n", true, {}}}};
}

QList<Subject> Subjects() {
  return {Profile(),   Settings(), Colours(), Taxes(),       Phone(), CallerId(), LogoPath(), LogoSize(),
          Customers(), Services(), Items(),   CustomItems(), Labor(), Carrier(),  Memo()};
}

void Put(const TemporaryTree& tree, const QString& name, const State& state) {
  if (state.Bytes) tree.Write(name, *state.Bytes);
}

const QString Witness = u"/KVInvoiceNo.txt"_s;
const QString WitnessCopy = u"/Backup/KVInvoiceNo.txt"_s;

}  // namespace

class Mirror : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void initTestCase();
  void whatIsToldHappensInEveryState_data();
  void whatIsToldHappensInEveryState();
  void aFileThatIsFoundUnreadableLaterEndsTheProgramWithoutTheExitBackup_data();
  void aFileThatIsFoundUnreadableLaterEndsTheProgramWithoutTheExitBackup();

 private:
  void CheckDamaged(ProgramFixture& program, const Subject& subject, QMap<QString, QByteArray> expected);
  void CheckLoaded(ProgramFixture& program, const Subject& subject, const State& read,
                   QMap<QString, QByteArray> expected);
};

void Mirror::initTestCase() {
  QImage picture(6, 3, QImage::Format_RGB32);
  picture.fill(Qt::darkGreen);
  QVERIFY(picture.save(Pictures().Path(u"/logo.png"_s)));
}

void Mirror::whatIsToldHappensInEveryState_data() {
  QTest::addColumn<int>("subject");
  QTest::addColumn<int>("live");
  QTest::addColumn<int>("copy");
  const QList<Subject> subjects = Subjects();
  for (int s = 0; s < subjects.size(); ++s) {
    const QList<State>& states = subjects[s].States;
    for (int live = 0; live < states.size(); ++live) {
      for (int copy = 0; copy < states.size(); ++copy) {
        QTest::addRow("%s %s, copy %s", qPrintable(subjects[s].File), states[live].Name, states[copy].Name)
            << s << live << copy;
      }
    }
  }
}

void Mirror::whatIsToldHappensInEveryState() {
  QFETCH(int, subject);
  QFETCH(int, live);
  QFETCH(int, copy);
  const Subject about = Subjects()[subject];
  const State& there = about.States[live];
  const State& kept = about.States[copy];

  ProgramFixture program;
  Put(program.Tree, about.File, there);
  Put(program.Tree, u"/Backup"_s + about.File, kept);
  program.Tree.Write(Witness, "20260017\r\n");
  program.Tree.Write(WitnessCopy, "20260001\r\n");

  // Only what is missing is fetched.
  const State& read = there.Bytes ? there : kept;
  QMap<QString, QByteArray> expected = program.Tree.Everything();
  if (read.Bytes) expected.insert(about.File, *read.Bytes);
  if (read.Loads) {
    CheckLoaded(program, about, read, expected);
  } else {
    CheckDamaged(program, about, expected);
  }
}

void Mirror::CheckDamaged(ProgramFixture& program, const Subject& subject, QMap<QString, QByteArray> expected) {
  program.Answers.Ok({}, u"Karvex Invoicer"_s);
  QVERIFY(!program.Start());
  QVERIFY(program.Running().HasEnded());
  const QString text = program.Answers.Last().Text;
  QVERIFY2(text.startsWith(program.Tree.Path(subject.File) + u": "_s), qPrintable(text));
  QVERIFY2(text.contains(u"The program ends and leaves all files as they are."_s), qPrintable(text));
  QCOMPARE(program.Tree.Everything(), expected);
}

void Mirror::CheckLoaded(ProgramFixture& program, const Subject& subject, const State& read,
                         QMap<QString, QByteArray> expected) {
  QVERIFY(program.Start());
  QCOMPARE(program.Tree.Everything(), expected);
  QCOMPARE(subject.See(program), read.Seen);
  ScreenDriver(u"frmSplash"_s).CloseByUser();
  QVERIFY(program.Running().HasEnded());
  // The end copies what the list names, whatever state it is in; what is missing keeps its older copy.
  expected.insert(WitnessCopy, "20260017\r\n");
  if (subject.AtExit && read.Bytes) expected.insert(u"/Backup"_s + subject.File, *read.Bytes);
  QCOMPARE(program.Tree.Everything(), expected);
}

void Mirror::aFileThatIsFoundUnreadableLaterEndsTheProgramWithoutTheExitBackup_data() {
  QTest::addColumn<QString>("file");
  QTest::addColumn<QByteArray>("bytes");
  QTest::newRow("the counter, empty") << Witness << QByteArray();
  QTest::newRow("the counter, damaged") << Witness << QByteArray("2026q017\r\n");
  QTest::newRow("the counter, too large") << Witness << QByteArray("20260017000\r\n");
  QTest::newRow("the default terms, empty") << u"/StatementTerms.txt"_s << QByteArray();
}

void Mirror::aFileThatIsFoundUnreadableLaterEndsTheProgramWithoutTheExitBackup() {
  QFETCH(QString, file);
  QFETCH(QByteArray, bytes);
  ProgramFixture program;
  program.Tree.Write(u"/CustomerData.txt"_s, BusinessRecord("1001", "Acme"));
  program.Tree.Write(u"/Services.txt"_s, Field("Repair", 60) + Field("$10.00", 10) + Bytes16(1));
  program.Tree.Write(u"/Backup/Services.txt"_s, "the good copy of another file");
  program.Tree.Write(file, bytes);
  program.Tree.Write(u"/Backup"_s + file, "the good copy");
  QVERIFY(program.StartAtMenu());
  ScreenDriver(u"frmStartup"_s).Click(u"cmdGoto"_s);
  program.Answers.Ok({}, u"Karvex Invoicer"_s);
  ScreenDriver(u"frmNewCustomer"_s).Click(u"cmdCustomer_1"_s);
  const QString text = program.Answers.Last().Text;
  QVERIFY2(text.startsWith(program.Tree.Path(file) + u": "_s), qPrintable(text));
  QVERIFY(program.Running().HasEnded());
  QCOMPARE(program.Tree.Bytes(file), bytes);
  QCOMPARE(program.Tree.Bytes(u"/Backup"_s + file), "the good copy");
  QCOMPARE(program.Tree.Bytes(u"/Backup/Services.txt"_s), "the good copy of another file");
}

QTEST_MAIN(Mirror)
#include "tst_mirror.moc"
