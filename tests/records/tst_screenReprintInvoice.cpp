// One completed invoice in full: its panel, its messages, and the memo.

#include "desktop/GridView.h"
#include "records/ReprintScreen.h"

using namespace Qt::StringLiterals;

namespace {

const QString Folder = u"/CompletedInvoices/"_s;

}  // namespace

class ScreenReprintInvoice : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void aClickShowsTheInvoiceInFull();
  void aKeyOpensTheRowToo();
  void theDescriptionIsTheCurrentColumnWhateverWasClickedBefore();
  void theTaxHeadingsAreSetups();
  void inUsaStyleTheStateIsNarrowAndThePostalCodeShows();
  void inInternationalStyleTheStateIsWideAndThePostalCodeIsHidden();
  void textsAreShownAsTheyStand();
  void anAmpersandInANumberMarksNoAccessKeyInTheTitle();
  void aRowWithoutItsImageSaysSoAndKeepsTheList();
  void anImageThatOnlyTheBackupHoldsComesBack();
  void aNumberThatCouldLeaveTheFolderIsRefused();
  void whatCannotBeReadNamesTheFileAndKeepsTheList_data();
  void whatCannotBeReadNamesTheFileAndKeepsTheList();
  void anInvoiceWithoutLinesIsShown();
  void reSelectLeadsBackToTheList();
  void escapeLeadsOneStepBack();
  void escapeLosesNoMemoThatWasTyped();
  void theMemoShownIsTheOneLoadedNow();
  void clearMemoEmptiesTheBoxAndDeletesItsFileAndCopy();
  void aDoubleClickOnARowClearsNoMemoUnderIt();
};

void ScreenReprintInvoice::aClickShowsTheInvoiceInFull() {
  ReprintScreen desk;
  QVERIFY(desk.Open());
  desk.Select(u"20260010"_s);
  const ScreenDriver screen = desk.On();
  QVERIFY(screen.IsVisible(u"fraInvoice"_s));
  QVERIFY(!screen.IsVisible(u"fgReceivables"_s));
  QVERIFY(!screen.Entry(u"mnuSort"_s)->isVisible());
  QCOMPARE(ReprintScreen::Title(), u"Details for Invoice 20260010"_s);
  const QStringList billTo{u"Bay Farm"_s, u"1 Dock Rd"_s, u"Gate 2"_s, u"Salem"_s, u"MA"_s, u"01970"_s};
  const QStringList shipTo{u"Barn"_s, u"2 Hill Rd"_s, u""_s, u"Lynn"_s, u"NH"_s, u"01901"_s};
  for (int i = 0; i < 6; ++i) {
    QCOMPARE(screen.Text(u"lblBillTo_%1"_s.arg(i)), billTo[i]);
    QCOMPARE(screen.Text(u"lblShipTo_%1"_s.arg(i)), shipTo[i]);
  }
  const std::initializer_list<std::pair<int, QString>> facts{{19, u"3/6/2026"_s}, {32, u"UPS Ground"_s},
                                                             {33, u"3/9/2026"_s}, {27, u"20260010"_s},
                                                             {17, u"1001"_s},     {9, u"PO 5"_s}};
  for (const auto& [element, text] : facts) QCOMPARE(screen.Text(u"Label1_%1"_s.arg(element)), text);
  QCOMPARE(screen.Text(u"txtAttn"_s), u"Ann"_s);
  const std::initializer_list<std::pair<int, QString>> amounts{{0, u"$1,024.00"_s}, {1, u"$51.20"_s}, {9, u"$1.30"_s},
                                                               {2, u"$1,086.50"_s}, {4, u"$12.50"_s}, {5, u"$3.00"_s},
                                                               {6, u"($2.25)"_s}};
  for (const auto& [element, text] : amounts) QCOMPARE(screen.Text(u"lblInvoice_%1"_s.arg(element)), text);

  const auto* items = screen.Control<QTableView>(u"fgItems"_s)->model();
  QCOMPARE(items->rowCount(), 2);
  const QList<QStringList> lines{{u"2"_s, u"Hammer, \"big\""_s, u""_s, u"$12.00"_s, u"$24.00"_s},
                                 {u""_s, u" Survey "_s, u"3/1/2026"_s, u"$1,000.00"_s, u"$1,000.00"_s}};
  for (int row = 0; row < 2; ++row) {
    for (int col = 0; col < 5; ++col) QCOMPARE(items->index(row, col).data().toString(), lines[row][col]);
  }
  QCOMPARE(items->index(0, 1).data(Qt::TextAlignmentRole).toInt(), static_cast<int>(Qt::AlignLeft | Qt::AlignVCenter));
  QVERIFY(screen.IsVisible(u"cmdPrint"_s) && screen.IsVisible(u"cmdHide"_s) && screen.IsVisible(u"cmdMemo"_s));
  QVERIFY(screen.IsVisible(u"cmdExit"_s));
  QCOMPARE(desk.Program.Answers.Boxes().size(), 0);
}

void ScreenReprintInvoice::aKeyOpensTheRowToo() {
  for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Space}) {
    ReprintScreen desk;
    QVERIFY(desk.Open());
    desk.On().PressKey(Qt::Key_Down);
    desk.On().PressKey(key);
    QCOMPARE(ReprintScreen::Title(), u"Details for Invoice 20260009"_s);
  }
}

void ScreenReprintInvoice::theDescriptionIsTheCurrentColumnWhateverWasClickedBefore() {
  ReprintScreen desk;
  QVERIFY(desk.Open());
  const TextMatrix* items = desk.On().Control<GridView>(u"fgItems"_s)->Matrix();
  desk.Select(u"20260010"_s);
  QCOMPARE(items->Col(), 1);
  desk.On().SelectRow(u"fgItems"_s, 2, 4);
  QCOMPARE(items->Col(), 4);
  desk.On().Click(u"cmdHide"_s);
  desk.Select(u"20260009"_s);
  QCOMPARE(items->Col(), 1);
  QCOMPARE(items->Alignment(1), Qt::AlignLeft | Qt::AlignVCenter);
  // Also where there is no image to show.
  desk.On().SelectRow(u"fgItems"_s, 1, 3);
  desk.On().Click(u"cmdHide"_s);
  desk.Program.Tree.Remove(Folder + u"20260010.txt"_s);
  desk.Program.Answers.Ok({}, u"Invoice Image Not Found"_s);
  desk.Select(u"20260010"_s);
  QVERIFY(desk.ShowsList());
  QCOMPARE(items->Col(), 1);
}

void ScreenReprintInvoice::theTaxHeadingsAreSetups() {
  ReprintScreen desk;
  desk.Program.Tree.Write(u"/TaxSettings.txt"_s, "\"GST\",\"Tax & <b>more</b>\",\"6.0\",\"1.0\",1,1\r\n");
  QVERIFY(desk.Open());
  desk.Select(u"900"_s);
  QCOMPARE(desk.On().Text(u"Label1_1"_s), u"GST"_s);
  QCOMPARE(desk.On().Text(u"Label1_22"_s), u"Tax & <b>more</b>"_s);
  QCOMPARE(desk.On().Control<QLabel>(u"Label1_22"_s)->textFormat(), Qt::PlainText);
}

void ScreenReprintInvoice::inUsaStyleTheStateIsNarrowAndThePostalCodeShows() {
  ReprintScreen desk;
  QVERIFY(desk.Open());
  desk.Select(u"20260010"_s);
  for (const auto& block : {u"lblBillTo"_s, u"lblShipTo"_s}) {
    // 435 twips.
    QCOMPARE(desk.On().Control(block + u"_4"_s)->width(), 29);
    QVERIFY(desk.On().IsVisible(block + u"_5"_s));
  }
}

void ScreenReprintInvoice::inInternationalStyleTheStateIsWideAndThePostalCodeIsHidden() {
  ReprintScreen desk;
  // A name and no postal code, and the customer screen was never shown.
  desk.Program.Tree.Write(u"/MyBusinessData.txt"_s,
                          "\"Grove\",\"12 Grove Road\",\"\",\"Sydney\",\"NSW\",\"\",\"555-0100\",\"\",\"\"\r\n");
  QVERIFY(desk.Open());
  desk.Select(u"20260010"_s);
  for (const auto& block : {u"lblBillTo"_s, u"lblShipTo"_s}) {
    // 2235 twips.
    QCOMPARE(desk.On().Control(block + u"_4"_s)->width(), 149);
    QVERIFY(!desk.On().IsVisible(block + u"_5"_s));
  }
  QCOMPARE(desk.On().Text(u"lblBillTo_5"_s), u"01970"_s);
}

void ScreenReprintInvoice::textsAreShownAsTheyStand() {
  ReprintScreen desk;
  QVERIFY(desk.Open());
  desk.Select(u"900"_s);
  QCOMPARE(desk.On().Text(u"lblBillTo_0"_s), u"Hill & Sons"_s);
  QCOMPARE(desk.On().Control<QLabel>(u"lblBillTo_0"_s)->textFormat(), Qt::PlainText);
}

void ScreenReprintInvoice::anAmpersandInANumberMarksNoAccessKeyInTheTitle() {
  ReprintScreen desk;
  desk.Program.Tree.Write(Folder + u"R&D-1.txt"_s, Image("R&D-1", "Bay Farm", "3/6/2026", "$1.00"));
  QVERIFY(desk.Open());
  desk.Select(u"R&D-1"_s);
  QCOMPARE(ReprintScreen::Title(), u"Details for Invoice R&&D-1"_s);
}

void ScreenReprintInvoice::aRowWithoutItsImageSaysSoAndKeepsTheList() {
  ReprintScreen desk;
  QVERIFY(desk.Open());
  desk.Program.Tree.Remove(Folder + u"20260010.txt"_s);
  desk.Program.Answers.Ok(
      u"An Image does not exist for this Transaction\nIt most likely is a result of\n"
      "a Service Attention Completion Posting\nor an E-Funds Received\nShown for Reference Only"_s,
      u"Invoice Image Not Found"_s);
  desk.Select(u"20260010"_s);
  QCOMPARE(desk.Program.Answers.Last().Buttons, QMessageBox::StandardButtons(QMessageBox::Ok));
  QCOMPARE(desk.Program.Answers.Last().Text.count(u"\r\n"_s), 4);
  QVERIFY(desk.ShowsList());
  QCOMPARE(desk.Column(0).size(), 4);
  desk.Select(u"20260011"_s);
  QCOMPARE(ReprintScreen::Title(), u"Details for Invoice 20260011"_s);
}

void ScreenReprintInvoice::anImageThatOnlyTheBackupHoldsComesBack() {
  ReprintScreen desk;
  QVERIFY(desk.Open());
  const QByteArray image = desk.Program.Tree.Bytes(Folder + u"20260010.txt"_s);
  desk.Program.Tree.Write(u"/Backup"_s + Folder + u"20260010.txt"_s, image);
  desk.Program.Tree.Remove(Folder + u"20260010.txt"_s);
  desk.Select(u"20260010"_s);
  QCOMPARE(ReprintScreen::Title(), u"Details for Invoice 20260010"_s);
  QCOMPARE(desk.Program.Tree.Bytes(Folder + u"20260010.txt"_s), image);
}

void ScreenReprintInvoice::aNumberThatCouldLeaveTheFolderIsRefused() {
  ReprintScreen desk;
  desk.Program.Tree.Write(Folder + u"x.txt"_s, Image("../Services", "Bay", "3/7/2026", "$1.00"));
  desk.Program.Tree.Write(Folder + u"y.txt"_s, Image("", "Blank", "3/7/2026", "$1.00"));
  QVERIFY(desk.Open());
  desk.Program.Answers.Ok();
  desk.Select(u"../Services"_s);
  QVERIFY(desk.Program.Answers.Last().Text.contains(u"../Services"_s));
  QVERIFY(desk.ShowsList());
  // One without a number has no image.
  desk.Program.Answers.Ok({}, u"Invoice Image Not Found"_s);
  desk.Select(u""_s);
  desk.Purge(u"3/8/2026"_s);
  QVERIFY(desk.Program.Tree.Exists(u"/Services.txt"_s));
  QCOMPARE(desk.Images(), (QStringList{u"x.txt"_s, u"y.txt"_s}));
}

void ScreenReprintInvoice::whatCannotBeReadNamesTheFileAndKeepsTheList_data() {
  QTest::addColumn<QByteArray>("content");
  QTest::addColumn<QString>("error");
  const QByteArray whole = Image("20260010", "Bay Farm", "3/6/2026", "$1,086.50");
  QTest::newRow("without its amounts") << whole.left(whole.lastIndexOf("\r\n\"$1,024.00\"") + 2) << u"(error 62)"_s;
  QTest::newRow("shorter than its count")
      << QByteArray(whole).replace("\r\nAnn\r\n2\r\n", "\r\nAnn\r\n9\r\n") << u"(error 62)"_s;
  QTest::newRow("five lines only") << QByteArray("20260010\r\n1001\r\nBay\r\n3/6/2026\r\n$1.00\r\n") << u"(error 62)"_s;
  QTest::newRow("a word for an amount") << QByteArray(whole).replace("\"$3.00\"", "\"three\"") << u"(error 13)"_s;
  QTest::newRow("an empty amount") << QByteArray(whole).replace("\"$3.00\"", "\"\"") << u"(error 13)"_s;
  QTest::newRow("an amount beyond any") << QByteArray(whole).replace("\"$3.00\"", "\"1E300\"") << u"(error 6)"_s;
  QTest::newRow("a word for the count") << QByteArray(whole).replace("\r\nAnn\r\n2\r\n", "\r\nAnn\r\ntwo\r\n")
                                        << u"(error 13)"_s;
  QTest::newRow("a count beyond 16 bits")
      << QByteArray(whole).replace("\r\nAnn\r\n2\r\n", "\r\nAnn\r\n32768\r\n") << u"(error 6)"_s;
  QTest::newRow("a count below zero") << QByteArray(whole).replace("\r\nAnn\r\n2\r\n", "\r\nAnn\r\n-1\r\n")
                                      << u"(error 9)"_s;
  QTest::newRow("a comma in the attention line")
      << QByteArray(whole).replace("\r\nAnn\r\n", "\r\nAnn, Bob\r\n") << u"(error 13)"_s;
}

void ScreenReprintInvoice::whatCannotBeReadNamesTheFileAndKeepsTheList() {
  QFETCH(const QByteArray, content);
  QFETCH(const QString, error);
  ReprintScreen desk;
  desk.Program.Tree.Write(Folder + u"20260010.txt"_s, content);
  QVERIFY(desk.Open());
  const auto before = desk.Program.Tree.Everything();
  desk.Program.Answers.Ok();
  desk.Select(u"20260010"_s);
  const QString text = desk.Program.Answers.Last().Text;
  QVERIFY2(text.contains(Folder + u"20260010.txt"_s) && text.contains(error), qPrintable(text));
  QVERIFY(text.endsWith(u"Mend the file or remove it, then try again. Nothing was lost."_s));
  QVERIFY(!desk.Program.Running().HasEnded());
  QVERIFY(desk.ShowsList());
  QCOMPARE(desk.Program.Tree.Everything(), before);
}

void ScreenReprintInvoice::anInvoiceWithoutLinesIsShown() {
  ReprintScreen desk;
  desk.Program.Tree.Write(Folder + u"20260010.txt"_s,
                          "20260010\r\n1001\r\nBay\r\n3/6/2026\r\n$0.00\r\n" + QByteArray("\"\"\r\n").repeated(12) +
                              "None\r\n3/6/2026\r\n20260010\r\n1001\r\n\r\n\r\n0\r\n"
                              "\"0\",\"$0.00\",\"0\",\"1.005\",\"$0.00\",\"$0.00\",\"$0.00\"\r\n");
  QVERIFY(desk.Open());
  desk.Select(u"20260009"_s);
  desk.On().Click(u"cmdHide"_s);
  desk.Select(u"20260010"_s);
  QCOMPARE(desk.On().Control<QTableView>(u"fgItems"_s)->model()->rowCount(), 0);
  // Amounts come through currency formatting, whatever the file holds.
  QCOMPARE(desk.On().Text(u"lblInvoice_0"_s), u"$0.00"_s);
  QCOMPARE(desk.On().Text(u"lblInvoice_2"_s), u"$1.01"_s);
}

void ScreenReprintInvoice::reSelectLeadsBackToTheList() {
  ReprintScreen desk;
  QVERIFY(desk.Open());
  desk.Select(u"900"_s);
  desk.On().Click(u"cmdHide"_s);
  QVERIFY(desk.ShowsList());
  QVERIFY(desk.On().IsVisible(u"cmdReport"_s) && desk.On().IsVisible(u"cmdKill"_s));
  desk.Select(u"20260011"_s);
  QCOMPARE(ReprintScreen::Title(), u"Details for Invoice 20260011"_s);
}

void ScreenReprintInvoice::escapeLeadsOneStepBack() {
  ReprintScreen desk;
  QVERIFY(desk.Open());
  desk.Select(u"900"_s);
  desk.On().PressKey(Qt::Key_Escape);
  QVERIFY(desk.ShowsList());
  desk.On().PressKey(Qt::Key_Escape);
  QVERIFY(ScreenDriver::IsShown(u"frmStartup"_s));
}

void ScreenReprintInvoice::escapeLosesNoMemoThatWasTyped() {
  ReprintScreen desk;
  QVERIFY(desk.Open());
  desk.Select(u"900"_s);
  desk.On().Fill(u"txtMemo"_s, u"Paid in full"_s);
  desk.On().PressKey(Qt::Key_Escape);
  QVERIFY(!desk.ShowsList());
  QCOMPARE(desk.On().Text(u"txtMemo"_s), u"Paid in full"_s);
  // What is cleared is lost already.
  desk.On().Click(u"cmdMemo"_s);
  desk.On().PressKey(Qt::Key_Escape);
  QVERIFY(desk.ShowsList());
  // The next invoice begins anew.
  desk.Select(u"900"_s);
  desk.On().Fill(u"txtMemo"_s, u"x"_s);
  desk.On().Click(u"cmdHide"_s);
  desk.Select(u"900"_s);
  desk.On().PressKey(Qt::Key_Escape);
  QVERIFY(desk.ShowsList());
}

void ScreenReprintInvoice::theMemoShownIsTheOneLoadedNow() {
  ReprintScreen desk;
  desk.Program.Tree.Write(u"/InvoiceMemo.txt"_s, "Thank you, come again\r\n\"Closed, on Sundays\"\r\n");
  QVERIFY(desk.Open());
  desk.Select(u"900"_s);
  QCOMPARE(desk.On().Text(u"txtMemo"_s), u"Thank you\ncome again\nClosed, on Sundays\n"_s);
  QVERIFY(desk.On().IsVisible(u"lblMemoNote"_s));
  desk.On().Fill(u"txtMemo"_s, u"typed"_s);
  desk.On().Click(u"cmdHide"_s);
  desk.Program.Tree.Write(u"/InvoiceMemo.txt"_s, "New\r\n");
  desk.Select(u"20260009"_s);
  QCOMPARE(desk.On().Text(u"txtMemo"_s), u"New\n"_s);
  desk.On().Click(u"cmdHide"_s);
  desk.Program.Tree.Remove(u"/InvoiceMemo.txt"_s);
  desk.Select(u"900"_s);
  QCOMPARE(desk.On().Text(u"txtMemo"_s), QString());
}

void ScreenReprintInvoice::clearMemoEmptiesTheBoxAndDeletesItsFileAndCopy() {
  ReprintScreen desk;
  desk.Program.Tree.Write(u"/InvoiceMemo.txt"_s, "Thanks\r\n");
  desk.Program.Tree.Write(u"/Backup/InvoiceMemo.txt"_s, "Old thanks\r\n");
  QVERIFY(desk.Open());
  desk.Select(u"900"_s);
  desk.On().PressAccessKey('E');
  QCOMPARE(desk.On().Text(u"txtMemo"_s), QString());
  QVERIFY(!desk.Program.Tree.Exists(u"/InvoiceMemo.txt"_s));
  QVERIFY(!desk.Program.Tree.Exists(u"/Backup/InvoiceMemo.txt"_s));
  QVERIFY(desk.On().IsVisible(u"fraInvoice"_s));
  // Without a file nothing more happens.
  desk.On().Click(u"cmdMemo"_s);
  QCOMPARE(desk.Program.Answers.Boxes().size(), 0);
}

void ScreenReprintInvoice::aDoubleClickOnARowClearsNoMemoUnderIt() {
  ReprintScreen desk;
  desk.Program.Tree.Write(u"/InvoiceMemo.txt"_s, "Thanks\r\n");
  for (int i = 0; i < 40; ++i) {
    const QByteArray number = QByteArray::number(20260020 + i);
    desk.Program.Tree.Write(Folder + QString::fromLatin1(number) + u".txt"_s, Image(number, "Bay", "3/7/2026", "$1"));
  }
  QVERIFY(desk.Open());
  desk.Select(u"900"_s);
  const ScreenDriver screen = desk.On();
  const auto* button = screen.Control(u"cmdMemo"_s);
  const QPoint place = button->mapTo(screen.Window(), button->rect().center());
  screen.Click(u"cmdHide"_s);
  const auto* list = screen.Control<QTableView>(u"fgReceivables"_s);
  QVERIFY(list->indexAt(list->viewport()->mapFrom(screen.Window(), place)).isValid());
  QTest::mouseDClick(screen.Window()->windowHandle(), Qt::LeftButton, Qt::NoModifier, place);
  ScreenDriver::ProcessEvents();
  QVERIFY(screen.IsVisible(u"fraInvoice"_s));
  QCOMPARE(desk.Program.Tree.Bytes(u"/InvoiceMemo.txt"_s), "Thanks\r\n");
  QVERIFY(screen.IsEnabled(u"cmdMemo"_s));
  screen.Click(u"cmdMemo"_s);
  QVERIFY(!desk.Program.Tree.Exists(u"/InvoiceMemo.txt"_s));
}

QTEST_MAIN(ScreenReprintInvoice)
#include "tst_screenReprintInvoice.moc"
