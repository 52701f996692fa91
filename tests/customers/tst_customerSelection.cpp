// The selection screen in the real program: when it comes up, what it offers when, and its ways out.

#include "customers/CustomerRecords.h"
#include "customers/frmCustomerSelection.h"
#include "customers/ProposalFiles.h"
#include "customers/ProposalList.h"
#include "support/DataFolder.h"
#include "support/ErrorOf.h"
#include "support/ProgramFixture.h"

using namespace Qt::StringLiterals;

namespace {

const QString Folder = u"/KarvexProposals"_s;

/// The headings that stand beside lblCustomerInfo, from 1.
const QStringList Headings{{},         u"Name"_s, u"Addr #1"_s,   u"Addr #2"_s, u"City"_s,
                           u"State"_s, u"Zip"_s,  u"Telephone"_s, u"Cell #"_s};

struct Desk {
  ProgramFixture Program;
  Desk() {
    Program.Tree.Write(u"/Services.txt"_s,
                       QByteArray("Repair").leftJustified(60) + "$10.00    " + QByteArray("\1\0", 2));
    Program.Tree.Write(u"/CustomerData.txt"_s, BusinessRecord("1001", "Acme Tools"));
    Program.Tree.Write(Folder + u"/b.txt"_s, PlainProposal());
    Program.Tree.Write(Folder + u"/a.txt"_s, MarkedProposal());
  }
  /// From the start to the screen.
  bool Open() {
    if (!Program.StartAtMenu()) return false;
    GoFromMenu();
    return Shown() && !ScreenDriver::IsShown(u"frmStartup"_s);
  }
  static void GoFromMenu() {
    const ScreenDriver menu(u"frmStartup"_s);
    menu.Click(u"optMainMenuSub_0"_s);
    menu.Click(u"cmdGoto"_s);
  }
  static bool Shown() { return ScreenDriver::IsShown(u"frmCustomerSelection"_s); }
};

ScreenDriver Selection() {
  return ScreenDriver(u"frmCustomerSelection"_s);
}

/// The account and the eight lines as they are read.
QStringList Details() {
  QStringList details{Selection().Text(u"lblAccount"_s)};
  for (int i = 1; i <= 8; ++i) details.append(Selection().Text(u"lblCustomerInfo_%1"_s.arg(i)));
  return details;
}

const QStringList BayFarm{u"2001"_s,          u"Bay Farm, Inc."_s, u"1 Dock Rd"_s,
                          u"Suite 4, rear"_s, u"Salem"_s,          u"MA"_s,
                          u"01970"_s,         u"978-555-0100"_s,   {}};
const QStringList HillTop{
    u"2002"_s, u"Hill, Top & Sons"_s, u"12 Ridge Road"_s, {}, u"Lynn"_s, u"MA"_s, u"01901"_s, u"781-555-0111"_s, {}};

QStringList Row(int row) {
  const auto* proposals = Selection().Control<QTableView>(u"fgProposals"_s)->model();
  QStringList cells;
  for (int col = 0; col < proposals->columnCount(); ++col)
    cells.append(proposals->index(row - 1, col).data().toString());
  return cells;
}

int RowCount() {
  return Selection().Control<QTableView>(u"fgProposals"_s)->model()->rowCount();
}

/// "choosing": the first help panel, nothing to create yet; "chosen": the second one, and an invoice can be made.
QString State() {
  const ScreenDriver selection = Selection();
  QString state;
  for (int i = 0; i < 2; ++i) state += selection.IsVisible(u"fraInstructions_%1"_s.arg(i)) ? u'v' : u'h';
  for (int i = 0; i < 3; ++i) state += selection.IsEnabled(u"cmdCreation_%1"_s.arg(i)) ? u'e' : u'd';
  if (state == u"vhedd"_s) return u"choosing"_s;
  if (state == u"hveee"_s) return u"chosen"_s;
  return state;
}

/// A program that notes what the screen asks of it.
class NotedProgram final : public Screens, public ScreenHost {
 public:
  DataFolder Folder;
  TestDialogs Boxes;
  ProposalList Proposals;
  std::unique_ptr<frmCustomerSelection> Selection;
  QStringList Asked;

  NotedProgram() {
    QDir(Folder.Path({})).mkdir(u"KarvexProposals"_s);
    Folder.Put(u"/KarvexProposals/a.txt"_s, MarkedProposal());
    Selection = std::make_unique<frmCustomerSelection>(*this, *this, Proposals, Folder.Disk, Boxes);
    if (Selection->MayShow()) Selection->Activate();
    Selection->show();
    ScreenDriver::ProcessEvents();
  }

  void Show(ScreenName screen) override { Note(u"show"_s, screen); }
  void Hide(ScreenName screen) override { Note(u"hide"_s, screen); }
  void Unload(ScreenName screen) override { Note(u"unload"_s, screen); }
  void ShowSetupAtFirstTab() override {}
  void StartInvoiceFor(const SoldTo& customer) override {
    Asked << u"invoice "_s + customer.Acct + u": "_s +
                 QStringList(customer.Line.begin(), customer.Line.end()).join(u'|');
  }
  void StartCall(const QString&, const QString&) override {}
  void PrintSample() override {}
  void QuitProgram() override {}
  void UnhandledError(const RuntimeError& error) override { Asked << error.Text(); }
  void UserClosed() override {}

 private:
  void Note(const QString& what, ScreenName screen) {
    const QMap<ScreenName, QString> names{{ScreenName::frmNewCustomer, u"frmNewCustomer"_s},
                                          {ScreenName::frmCustomerSelection, u"frmCustomerSelection"_s},
                                          {ScreenName::frmStartup, u"frmStartup"_s}};
    Asked << what + u' ' + names.value(screen);
  }
};

}  // namespace

class CustomerSelection : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void aProposalLeadsToThisScreenAndWithoutOneTheCustomersCome() {
    Desk desk;
    desk.Program.Tree.Remove(Folder + u"/a.txt"_s);
    desk.Program.Tree.Remove(Folder + u"/b.txt"_s);
    // Neither is a proposal.
    desk.Program.Tree.Write(Folder + u"/a.doc"_s, MarkedProposal());
    desk.Program.Tree.Write(Folder + u"/ProposalBody/a.txt"_s, MarkedProposal());
    QVERIFY(desk.Program.StartAtMenu());
    Desk::GoFromMenu();
    QVERIFY(!Desk::Shown());
    ScreenDriver(u"frmNewCustomer"_s).Click(u"cmdCustomer_0"_s);

    desk.Program.Tree.Write(Folder + u"/A.TXT"_s, MarkedProposal());
    Desk::GoFromMenu();
    QVERIFY(Desk::Shown());
    QVERIFY(!ScreenDriver::IsShown(u"frmNewCustomer"_s));
    QVERIFY(!ScreenDriver::IsShown(u"frmStartup"_s));
  }

  void theCaptions() {
    Desk desk;
    QVERIFY(desk.Open());
    const ScreenDriver selection = Selection();
    const QList<QPair<QString, QString>> captions{{u"cmdStartup_0"_s, u"Select Customer from Customer List"_s},
                                                  {u"cmdStartup_1"_s, u"Select Customer from Existing Proposal"_s},
                                                  {u"cmdCreation_0"_s, u"Return without Selecting a Customer"_s},
                                                  {u"cmdCreation_1"_s, u"&Create an Invoice"_s},
                                                  {u"cmdCreation_2"_s, u"Select a Different Customer"_s},
                                                  {u"cmdCancelselectProposal"_s, u"Cancel Select from Proposal"_s}};
    for (const auto& [name, caption] : captions) QCOMPARE(selection.Control<QPushButton>(name)->text(), caption);
    for (int i = 1; i <= 8; ++i) {
      const auto* heading = selection.Control<QLabel>(u"lblCustomerHeading_%1"_s.arg(i));
      const auto* line = selection.Control<QLabel>(u"lblCustomerInfo_%1"_s.arg(i));
      QCOMPARE(heading->text(), Headings[i]);
      QCOMPARE(heading->geometry().center().y(), line->geometry().center().y());
      QVERIFY(heading->geometry().right() < line->geometry().left());
    }
  }

  void atFirstNothingIsChosen() {
    Desk desk;
    QVERIFY(desk.Open());
    QCOMPARE(State(), u"choosing"_s);
    QVERIFY(!Selection().IsVisible(u"fraProposals"_s));
    QVERIFY(Selection().IsEnabled(u"cmdStartup_0"_s));
    QVERIFY(Selection().IsEnabled(u"cmdStartup_1"_s));
    QCOMPARE(Details(), QStringList(9, {}));
  }

  void theProposalsAreListedInTheOrderOfTheirFiles() {
    Desk desk;
    desk.Program.Tree.Write(Folder + u"/c.txt"_s, "FP0,-1,1/1/2025,1,Able,a,b,c,d,e,f");
    QVERIFY(desk.Open());
    Selection().Click(u"cmdStartup_1"_s);
    QVERIFY(Selection().IsVisible(u"fraProposals"_s));
    const auto* proposals = Selection().Control<QTableView>(u"fgProposals"_s)->model();
    const QStringList headings{u"Proposal No"_s, u"Created on"_s, u"Customer Information"_s, u"Amount"_s};
    for (int col = 0; col < 4; ++col) QCOMPARE(proposals->headerData(col, Qt::Horizontal).toString(), headings[col]);
    QCOMPARE(RowCount(), 3);
    QCOMPARE(Row(1), (QStringList{u"FP-1001"_s, u"3/2/2026"_s, u"Bay Farm, Inc."_s, u"$1,234.50"_s}));
    QCOMPARE(Row(2), (QStringList{u"1002"_s, u"3/5/2026"_s, u"Hill, Top & Sons"_s, u"$80.00"_s}));
    QCOMPARE(Row(3), (QStringList{u"FP0"_s, u"1/1/2025"_s, u"Able"_s, u"($1.00)"_s}));
  }

  void aClickOnARowChoosesItsCustomer() {
    Desk desk;
    QVERIFY(desk.Open());
    Selection().Click(u"cmdStartup_1"_s);
    QCOMPARE(State(), u"choosing"_s);
    Selection().SelectRow(u"fgProposals"_s, 2);
    QCOMPARE(Details(), HillTop);
    QVERIFY(!Selection().IsVisible(u"fraProposals"_s));
    QCOMPARE(State(), u"chosen"_s);
    // Another one takes its place.
    Selection().Click(u"cmdStartup_1"_s);
    QCOMPARE(State(), u"chosen"_s);
    Selection().SelectRow(u"fgProposals"_s, 1, 3);
    QCOMPARE(Details(), BayFarm);
    QCOMPARE(State(), u"chosen"_s);
  }

  void theKeysChooseToo() {
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Space}) {
      Desk desk;
      QVERIFY(desk.Open());
      Selection().Click(u"cmdStartup_1"_s);
      QCOMPARE(Selection().FocusName(), u"fgProposals"_s);
      Selection().PressKey(Qt::Key_Down);
      QCOMPARE(State(), u"choosing"_s);
      Selection().PressKey(key);
      QCOMPARE(Details(), HillTop);
      QCOMPARE(State(), u"chosen"_s);
      // And the next Enter makes the invoice.
      Selection().PressKey(Qt::Key_Return);
      QVERIFY(ScreenDriver::IsShown(u"frmInvoice"_s));
    }
  }

  void aDoubleClickChoosesAndDoesNothingElse() {
    Desk desk;
    QVERIFY(desk.Open());
    Selection().Click(u"cmdStartup_1"_s);
    const QWidget* window = Selection().Window();
    const auto placeOf = [window](const QWidget* control) {
      return QRect(control->mapTo(window, QPoint()), control->size());
    };
    const QRect list = placeOf(Selection().Control(u"fgProposals"_s));
    Selection().SelectRow(u"fgProposals"_s, 1);
    // The second press finds no button where the row was.
    for (const QAbstractButton* button : window->findChildren<QAbstractButton*>()) {
      QVERIFY2(!button->isVisible() || !placeOf(button).intersects(list), qPrintable(button->objectName()));
    }
  }

  void cancelClosesTheListAndTakesTheChoiceBack() {
    Desk desk;
    QVERIFY(desk.Open());
    Selection().Click(u"cmdStartup_1"_s);
    Selection().Click(u"cmdCancelselectProposal"_s);
    QVERIFY(!Selection().IsVisible(u"fraProposals"_s));
    QCOMPARE(State(), u"choosing"_s);
    QCOMPARE(Details(), QStringList(9, {}));
    Selection().Click(u"cmdStartup_1"_s);
    Selection().SelectRow(u"fgProposals"_s, 1);
    Selection().Click(u"cmdStartup_1"_s);
    Selection().PressKey(Qt::Key_Escape);
    QVERIFY(Desk::Shown());
    QVERIFY(!Selection().IsVisible(u"fraProposals"_s));
    QCOMPARE(State(), u"choosing"_s);
    QCOMPARE(Details(), BayFarm);
  }

  void aDifferentCustomerKeepsTheDetailsUntilTheNextShowing() {
    Desk desk;
    QVERIFY(desk.Open());
    Selection().Click(u"cmdStartup_1"_s);
    Selection().SelectRow(u"fgProposals"_s, 1);
    Selection().Click(u"cmdCreation_2"_s);
    QCOMPARE(State(), u"choosing"_s);
    QCOMPARE(Details(), BayFarm);
    Selection().Click(u"cmdCreation_0"_s);
    QVERIFY(!Desk::Shown());
    Desk::GoFromMenu();
    QCOMPARE(State(), u"choosing"_s);
    QCOMPARE(Details(), QStringList(9, {}));
  }

  void theReturnAndEscapeLeadToTheMenu() {
    Desk desk;
    QVERIFY(desk.Open());
    const auto before = desk.Program.Tree.Everything();
    Selection().Click(u"cmdCreation_0"_s);
    QVERIFY(ScreenDriver::IsShown(u"frmStartup"_s));
    QVERIFY(!Desk::Shown());
    Desk::GoFromMenu();
    Selection().PressKey(Qt::Key_Escape);
    QVERIFY(ScreenDriver::IsShown(u"frmStartup"_s));
    QVERIFY(!Desk::Shown());
    QCOMPARE(desk.Program.Tree.Everything(), before);
  }

  void aListLeftOpenIsStillOpen() {
    Desk desk;
    QVERIFY(desk.Open());
    Selection().Click(u"cmdStartup_1"_s);
    Selection().Click(u"cmdCreation_0"_s);
    Desk::GoFromMenu();
    QVERIFY(Selection().IsVisible(u"fraProposals"_s));
    QCOMPARE(State(), u"choosing"_s);
  }

  void theCustomerListShowsTheCustomersAndUnloadsThisScreen() {
    Desk desk;
    QVERIFY(desk.Open());
    Selection().Click(u"cmdStartup_1"_s);
    Selection().Click(u"cmdStartup_0"_s);
    QVERIFY(ScreenDriver::IsShown(u"frmNewCustomer"_s));
    QVERIFY(!Desk::Shown());
    QVERIFY(desk.Program.Built(ScreenName::frmCustomerSelection) == nullptr);
    ScreenDriver(u"frmNewCustomer"_s).Click(u"cmdCustomer_0"_s);
    // A new load: the list is read anew, and its frame is closed as at first.
    desk.Program.Tree.Write(Folder + u"/c.txt"_s, "FP0,-1,1/1/2025,1,Able,a,b,c,d,e,f");
    Desk::GoFromMenu();
    QVERIFY(!Selection().IsVisible(u"fraProposals"_s));
    QCOMPARE(RowCount(), 3);
  }

  void theListIsReadOnceForAsLongAsTheScreenIsLoaded() {
    Desk desk;
    QVERIFY(desk.Open());
    Selection().Click(u"cmdCreation_0"_s);
    desk.Program.Tree.Write(Folder + u"/c.txt"_s, "not a proposal");
    desk.Program.Tree.Remove(Folder + u"/b.txt"_s);
    Desk::GoFromMenu();
    QCOMPARE(RowCount(), 2);
    Selection().Click(u"cmdStartup_1"_s);
    Selection().SelectRow(u"fgProposals"_s, 2);
    QCOMPARE(Details(), HillTop);
    // Making an invoice hides the screen only.
    Selection().Click(u"cmdCreation_1"_s);
    QVERIFY(!Desk::Shown());
    QVERIFY(desk.Program.Built(ScreenName::frmCustomerSelection) != nullptr);
    ScreenDriver(u"frmInvoice"_s).Click(u"cmdInvoice_1"_s);
    Desk::GoFromMenu();
    QCOMPARE(RowCount(), 2);
  }

  void withoutProposalsTheScreenSaysSoAndOffersTheCustomerListAlone() {
    Desk desk;
    desk.Program.Tree.Remove(Folder + u"/a.txt"_s);
    desk.Program.Tree.Remove(Folder + u"/b.txt"_s);
    QVERIFY(desk.Program.StartAtMenu());
    // They may go between the menu's look and the load.
    desk.Program.Answers.Ok(u"No Proposals Exist"_s, u"Karvex Invoicer"_s);
    desk.Program.Running().Show(ScreenName::frmCustomerSelection);
    QCOMPARE(desk.Program.Answers.Last().Buttons, QMessageBox::Ok);
    QVERIFY(Selection().IsEnabled(u"cmdStartup_0"_s));
    QVERIFY(!Selection().IsEnabled(u"cmdStartup_1"_s));
    QCOMPARE(State(), u"choosing"_s);
    QVERIFY(!Selection().IsVisible(u"fraProposals"_s));
  }

  void makingTheScreenReadsNothingAndShowsNoBox() {
    QueuedAnswers noBox;
    DataFolder folder;
    QDir(folder.Path({})).mkdir(u"KarvexProposals"_s);
    TestDialogs boxes;
    ProposalList proposals;
    NotedProgram host;
    frmCustomerSelection none(host, host, proposals, folder.Disk, boxes);
    folder.Put(u"/KarvexProposals/a.txt"_s, "not a proposal");
    frmCustomerSelection damaged(host, host, proposals, folder.Disk, boxes);
    QCOMPARE(folder.Device.Count(FailingDevice::Call::Read), 0);
    QCOMPARE(proposals.Count(), 0);
    // What it would have met is met once it is to be shown, and as often as it is.
    QCOMPARE(ErrorOf([&] { damaged.MayShow(); }), 62);
    QCOMPARE(ErrorOf([&] { damaged.MayShow(); }), 62);
    folder.Put(u"/KarvexProposals/a.txt"_s, MarkedProposal());
    QVERIFY(damaged.MayShow());
    QCOMPARE(proposals.Count(), 1);
  }

  void aFileThatIsNoProposalIsNamedAndTheMenuStays_data() {
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("told");
    QTest::newRow("empty") << QByteArray() << u": The file ends too early. (error 62)"_s;
    QTest::newRow("cut short") << MarkedProposal().chopped(17) << u": The file ends too early. (error 62)"_s;
    QTest::newRow("unmarked, with eleven fields")
        << QByteArray("1,5,3/2/2026,7,Smith,a,b,c,d,e,f") << u": The file ends too early. (error 62)"_s;
    QTest::newRow("garbled") << QByteArray("\x89PNG\r\n\x1a\n\0\0\0\rIHDR", 16)
                             << u": The file ends too early. (error 62)"_s;
    QTest::newRow("an amount that isn't a number") << QByteArray("FP1,to be agreed,3/2/2026,7,Smith,a,b,c,d,e,f")
                                                   << u": Its amount, \"to be agreed\", isn't a number. (error 13)"_s;
  }
  void aFileThatIsNoProposalIsNamedAndTheMenuStays() {
    QFETCH(const QByteArray, content);
    QFETCH(const QString, told);
    Desk desk;
    desk.Program.Tree.Write(Folder + u"/b.txt"_s, content);
    QVERIFY(desk.Program.StartAtMenu());
    const auto before = desk.Program.Tree.Everything();
    desk.Program.Answers.Ok(desk.Program.Tree.Path(Folder + u"/b.txt"_s) + told +
                                u"\n\nMend the file or remove it, then try again. Nothing was lost."_s,
                            u"Karvex Invoicer"_s);
    Desk::GoFromMenu();
    QVERIFY(!Desk::Shown());
    QVERIFY(ScreenDriver::IsShown(u"frmStartup"_s));
    QVERIFY(!desk.Program.Running().HasEnded());
    QCOMPARE(desk.Program.Tree.Everything(), before);
    // Once it is mended the screen comes up.
    desk.Program.Tree.Write(Folder + u"/b.txt"_s, PlainProposal());
    Desk::GoFromMenu();
    QVERIFY(Desk::Shown());
    QCOMPARE(RowCount(), 2);
  }

  void detailsAreShownAsTheyStand() {
    Desk desk;
    desk.Program.Tree.Write(Folder + u"/a.txt"_s, "FP1,5,3/2/2026,<7>,A && <b>B</b> & Co,a,b,c,d,e,f");
    QVERIFY(desk.Open());
    Selection().Click(u"cmdStartup_1"_s);
    Selection().SelectRow(u"fgProposals"_s, 1);
    QCOMPARE(Details().mid(0, 2), (QStringList{u"<7>"_s, u"A && <b>B</b> & Co"_s}));
    QCOMPARE(Selection().Control<QLabel>(u"lblCustomerInfo_1"_s)->textFormat(), Qt::PlainText);
    Selection().Click(u"cmdCreation_1"_s);
    QCOMPARE(ScreenDriver(u"frmInvoice"_s).Text(u"lblAcct"_s), u"<7>"_s);
    QCOMPARE(ScreenDriver(u"frmInvoice"_s).Text(u"lblCustomer_0"_s), u"A && <b>B</b> & Co"_s);
  }

  void theCreationHandsOverAllEightFieldsThenHides() {
    NotedProgram program;
    Selection().Click(u"cmdStartup_1"_s);
    Selection().SelectRow(u"fgProposals"_s, 1);
    Selection().PressAccessKey('C');
    QCOMPARE(program.Asked,
             (QStringList{u"invoice 2001: Bay Farm, Inc.|1 Dock Rd|Suite 4, rear|Salem|MA|01970|978-555-0100"_s,
                          u"hide frmCustomerSelection"_s}));
  }

  void theCustomerListIsShownBeforeThisScreenGoes() {
    NotedProgram program;
    Selection().Click(u"cmdStartup_1"_s);
    Selection().SelectRow(u"fgProposals"_s, 1);
    Selection().Click(u"cmdStartup_0"_s);
    QCOMPARE(program.Asked, (QStringList{u"show frmNewCustomer"_s, u"unload frmCustomerSelection"_s}));
  }

  void theReturnHidesBeforeTheMenuShows() {
    NotedProgram program;
    Selection().Click(u"cmdCreation_0"_s);
    QCOMPARE(program.Asked, (QStringList{u"hide frmCustomerSelection"_s, u"show frmStartup"_s}));
  }

  void theCloseBoxEndsTheProgram() {
    Desk desk;
    QVERIFY(desk.Open());
    Selection().CloseByUser();
    QVERIFY(desk.Program.Running().HasEnded());
    QVERIFY(desk.Program.Tree.Exists(u"/Backup/Services.txt"_s));
  }
};

QTEST_MAIN(CustomerSelection)
#include "tst_customerSelection.moc"
