// Every file that is read at start and can come back from the Backup folder, with the file and its copy each missing,
// empty, cut short, damaged by one bit, older or good: which of the two is read, what it says, and which bytes stand on
// the disk after the run. A file that is there is never fetched from the copy, whatever it holds; one that can't be
// read ends the program without the exit backup, so that the copy stays.

#include <QtWidgets>

#include "customers/CustomerRecords.h"
#include "reliability/MemoryDisk.h"
#include "reliability/TwoCopies.h"
#include "support/InvoiceBench.h"
#include "support/ProgramFixture.h"
#include "support/SetupScreen.h"

using namespace Qt::StringLiterals;

namespace {

[[maybe_unused]] const MemoryDisk Quick;

struct Subject {
  QString File;
  std::function<QString(ProgramFixture&)> See;
  QList<CopyState> States;
};

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

const QString Witness = u"/KVInvoiceNo.txt"_s;

}  // namespace

class Mirror : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void initTestCase();
  void whatIsToldHappensInEveryState_data();
  void whatIsToldHappensInEveryState();

 private:
  void CheckDamaged(ProgramFixture& program, const Subject& subject, QMap<QString, QByteArray> expected);
  void CheckLoaded(ProgramFixture& program, const Subject& subject, const CopyState& read,
                   QMap<QString, QByteArray> expected);
};

void Mirror::initTestCase() {
  QImage picture(6, 3, QImage::Format_RGB32);
  picture.fill(Qt::darkGreen);
  QVERIFY(picture.save(Pictures().Path(u"/logo.png"_s)));
}

void Mirror::whatIsToldHappensInEveryState_data() {
  AddPairs(Subjects());
}

void Mirror::whatIsToldHappensInEveryState() {
  QFETCH(int, subject);
  QFETCH(int, live);
  QFETCH(int, copy);
  const Subject about = Subjects()[subject];
  const CopyState& there = about.States[live];
  const CopyState& kept = about.States[copy];

  ProgramFixture program;
  Put(program.Tree, about.File, there.Bytes);
  Put(program.Tree, CopyOf(about.File), kept.Bytes);
  program.Tree.Write(Witness, "20260017\r\n");
  program.Tree.Write(CopyOf(Witness), "20260001\r\n");

  const CopyState& read = ReadOf(there, kept);
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

void Mirror::CheckLoaded(ProgramFixture& program, const Subject& subject, const CopyState& read,
                         QMap<QString, QByteArray> expected) {
  QVERIFY(program.Start());
  QCOMPARE(program.Tree.Everything(), expected);
  QCOMPARE(subject.See(program), read.Seen);
  ScreenDriver(u"frmSplash"_s).CloseByUser();
  QVERIFY(program.Running().HasEnded());
  // The end copies what the list names, whatever state it is in; what is missing keeps its older copy.
  expected.insert(CopyOf(Witness), "20260017\r\n");
  if (IsCopiedAtExit(subject.File) && read.Bytes) expected.insert(CopyOf(subject.File), *read.Bytes);
  QCOMPARE(program.Tree.Everything(), expected);
}

QTEST_MAIN(Mirror)
#include "tst_mirror.moc"
