// The PDF as poppler's tools read it back, against the same page on the recording surface.
#include <cmath>
#include <QDialogButtonBox>
#include <QPrinter>
#include <QPushButton>

#include "desktop/PaperDevice.h"
#include "desktop/PaperPrinter.h"
#include "printing/BlankInvoices.h"
#include "printing/PackingSlip.h"
#include "support/ErrorOf.h"
#include "support/PageFixture.h"
#include "support/QueuedAnswers.h"
#include "support/TemporaryTree.h"

using namespace Qt::StringLiterals;

class TestPdf : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void sheetsAreLetterAndAsManyAsPages();
  void aLyingSheetIsLetterToo();
  void arialIsLiberationSansInBothWeightsEmbedded();
  void everyWordStandsWhereTheRecordingHasIt();
  void aPrinterOfTheSystemGetsTheSamePage();
  void aPictureThatCannotBeReadSendsNothingToThePrinter();
  void aPrinterOfTheSystemTellsItsPagesAndAStopSendsNothing();
  void onceItsPagesAreSentAPrinterOfTheSystemGetsThemAll();
  void rulesAreSixTwipsWideAndBlack();
  void colorsAreOnPaperEvenInMonochromeMode();
  void theLogoFillsItsPlace();
  void aPackingSlipOfThreePages();
  void blankSheetsOnBothPapers();
  void narratives_data();
  void narratives();
};

namespace {
constexpr int PixelsPerInch = 360;
constexpr int TwipsPerPixel = 4;

struct Word {
  QString Text;
  double X = 0;  ///< In twips, as Y.
  double Y = 0;
};

QByteArray Run(const QString& tool, const QStringList& arguments) {
  QProcess process;
  process.start(tool, arguments);
  if (!process.waitForFinished(60000) || process.exitCode() != 0)
    qFatal("%s failed; the set-up installs poppler-utils", qPrintable(tool));
  return process.readAllStandardOutput();
}

/// An invoice of `lines` lines with all that a page can bear, on the recording surface and in a PDF.
struct Printed {
  explicit Printed(int lines) {
    Fixture.Look.optReturn = true;
    Fixture.FillLines(lines);
    if (lines > 0)
      Fixture.SetLine(1, {u"1"_s, u"A long description that goes on to a second line of its column, no more"_s,
                          u"3/7/2026"_s, u"$1,000.00"_s, u"$1,000.00"_s});
    Fixture.Page.HasShipTo = true;
    Fixture.Page.ShipTo = Fixture.Page.SoldTo;
    Fixture.Page.Shipping = {u"UPS"_s, u"3/7/2026"_s, u"4711"_s};
    Fixture.Write(u"/InvoiceMemo.txt"_s, "Thank you\r\nCome again\r\n");
    Fixture.Write(u"/StatementTerms.txt"_s, "Net 30 Days\r\n");
  }

  void Print() {
    Print([this](PrinterRoutines&, KVPrint& pages) { pages.PrintInvoice(Fixture.Page, Fixture.Draft); });
  }

  /// A job of any kind, on both.
  void Print(const std::function<void(PrinterRoutines&, KVPrint&)>& job) {
    job(Fixture.Routines, Fixture.Pages);
    PrinterRoutines routines(Paper, Fixture.Look, Fixture.Dialog);
    KVPrint pages(routines, Fixture.Disk, Fixture.Messages, Fixture.Now, {Fixture.Business, Fixture.Look, Fixture.Tax});
    job(routines, pages);
  }

  /// The printer dialog comes up and is accepted as it stands: with the name of `Pdf`.
  void AcceptDialog() {
    Answers.Dialog(
        [](QDialog& dialog) { dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->click(); });
  }

  /// The one file that was printed, whatever its name.
  QString Pdf() const { return Folder.Path(u"/Documents/"_s + Folder.List(u"/Documents"_s).value(0)); }

  QImage Picture(int page = 1) const {
    const QString number = QString::number(page);
    const QString root = Folder.Path(u"/page"_s);
    Run(u"pdftoppm"_s, {u"-r"_s, QString::number(PixelsPerInch), u"-f"_s, number, u"-l"_s, number, u"-aa"_s, u"no"_s,
                        u"-aaVector"_s, u"no"_s, u"-png"_s, u"-singlefile"_s, Pdf(), root});
    return QImage(root + u".png"_s);
  }

  PageFixture Fixture;
  QueuedAnswers Answers;
  TemporaryTree Folder;
  PaperPrinter Paper{Fixture.Store, Fixture.Messages, Folder.Path(u"/Documents"_s)};
};

std::vector<Word> WordsOf(const QString& pdf, int page) {
  const QString number = QString::number(page);
  const QString html =
      QString::fromUtf8(Run(u"pdftotext"_s, {u"-bbox"_s, u"-f"_s, number, u"-l"_s, number, pdf, u"-"_s}));
  static const QRegularExpression pattern(u"<word xMin=\"([^\"]*)\" yMin=\"([^\"]*)\" [^>]*>([^<]*)</word>"_s);
  std::vector<Word> words;
  for (const QRegularExpressionMatch& match : pattern.globalMatch(html))
    words.push_back({match.captured(3).replace(u"&quot;"_s, u"\""_s), match.captured(1).toDouble() * 20,
                     match.captured(2).toDouble() * 20});
  return words;
}

/// The recorded page's words: each run cut at its blanks.
std::vector<Word> WordsOf(const PaperPage& page, PaperFonts& fonts) {
  std::vector<Word> words;
  for (const PaperMark& mark : page) {
    const auto* run = std::get_if<PaperText>(&mark);
    if (run == nullptr) continue;
    const QFontMetricsF& metrics = fonts.Get(run->Font).Metrics;
    qsizetype start = 0;
    for (const QString& part : run->Text.split(u' ')) {
      const double x = static_cast<double>(run->X) + metrics.horizontalAdvance(run->Text.left(start));
      if (!part.isEmpty()) words.push_back({part, x, static_cast<double>(run->Y)});
      start += part.size() + 1;
    }
  }
  return words;
}

/// What stands in one list and not, within two twips, in the other. (The tool tells words that lie over each other, as
/// the doubled column headings do, only once.)
QString Difference(const std::vector<Word>& recorded, const std::vector<Word>& onPaper) {
  const auto missing = [](const QString& what, const std::vector<Word>& wanted, const std::vector<Word>& there) {
    QString list;
    for (const Word& word : wanted) {
      const bool found = std::any_of(there.begin(), there.end(), [&](const Word& other) {
        return other.Text == word.Text && std::abs(other.X - word.X) < 2 && std::abs(other.Y - word.Y) < 2;
      });
      if (!found) list += u"%1: %2 at %3,%4\n"_s.arg(what, word.Text).arg(word.X).arg(word.Y);
    }
    return list;
  };
  if (recorded.empty()) return u"nothing recorded"_s;
  return missing(u"not on paper"_s, recorded, onPaper) + missing(u"not recorded"_s, onPaper, recorded);
}

QRgb PixelAt(const QImage& picture, int x, int y) {
  return picture.pixel(x / TwipsPerPixel, y / TwipsPerPixel) & 0xFFFFFF;
}

/// Whether a pixel of the colour stands in the rectangle, in twips.
bool HasColor(const QImage& picture, const QRect& place, QRgb color) {
  for (int y = place.top(); y < place.bottom(); y += TwipsPerPixel) {
    for (int x = place.left(); x < place.right(); x += TwipsPerPixel) {
      if (PixelAt(picture, x, y) == color) return true;
    }
  }
  return false;
}
}  // namespace

void TestPdf::sheetsAreLetterAndAsManyAsPages() {
  Printed printed(100);
  printed.Print();
  const QString info = QString::fromUtf8(Run(u"pdfinfo"_s, {printed.Pdf()}));
  QVERIFY2(info.contains(u"612 x 792 pts (letter)"_s), qPrintable(info));
  QVERIFY2(info.contains(QRegularExpression(u"Pages: +5\n"_s)), qPrintable(info));
}

void TestPdf::aLyingSheetIsLetterToo() {
  Printed printed(0);
  printed.Paper.Orientation = 2;
  printed.Paper.PrintLine(u"a"_s);
  printed.Paper.EndDoc();
  QVERIFY(Run(u"pdfinfo"_s, {printed.Pdf()}).contains("792 x 612 pts (letter)"));
}

void TestPdf::arialIsLiberationSansInBothWeightsEmbedded() {
  Printed printed(1);
  printed.Print();
  const QString fonts = QString::fromUtf8(Run(u"pdffonts"_s, {printed.Pdf()}));
  const QStringList rows = fonts.split(u'\n', Qt::SkipEmptyParts).mid(2);
  QCOMPARE(rows.size(), 2);
  for (const QString& weight : {u"LiberationSans "_s, u"LiberationSans-Bold "_s}) {
    const QStringList found = rows.filter(weight);
    QCOMPARE(found.size(), 1);
    QVERIFY2(found.at(0).contains(u" yes "_s), qPrintable(fonts));
  }
}

void TestPdf::everyWordStandsWhereTheRecordingHasIt() {
  Printed printed(40);
  printed.Print();
  PaperFonts fonts;
  for (int page = 1; page <= 2; ++page) {
    const PaperPage& recorded = printed.Fixture.Paper.PageOf(static_cast<std::size_t>(page));
    QCOMPARE(Difference(WordsOf(recorded, fonts), WordsOf(printed.Pdf(), page)), QString());
  }
}

void TestPdf::aPrinterOfTheSystemGetsTheSamePage() {
  Printed printed(40);
  printed.Print();
  const QString path = printed.Folder.Path(u"/printer.pdf"_s);
  QPrinter device(QPrinter::HighResolution);
  device.setOutputFileName(path);
  PaperFonts fonts;
  PrepareSheet(device, true);
  DrawJob(printed.Fixture.Paper.Jobs.back(), device, fonts);
  QVERIFY(Run(u"pdfinfo"_s, {path}).contains("612 x 792 pts (letter)"));
  for (int page = 1; page <= 2; ++page)
    QCOMPARE(Difference(WordsOf(path, page), WordsOf(printed.Pdf(), page)), QString());
}

void TestPdf::aPictureThatCannotBeReadSendsNothingToThePrinter() {
  // A good page and a half before it: a printer would have them by the time the picture is reached.
  const PaperPage good{PaperText{1000, 1000, u"Half a page"_s, {u"Arial"_s}, 0}};
  PaperPage bad = good;
  bad.push_back(PaperPicture{"no picture", QRect(0, 0, 1440, 1440)});
  const TemporaryTree folder;
  const QString path = folder.Path(u"/printer.pdf"_s);
  PaperFonts fonts;
  const auto print = [&](const PaperJob& job) {
    QPrinter device(QPrinter::HighResolution);
    device.setOutputFileName(path);
    PrepareSheet(device, true);
    DrawJob(job, device, fonts);
  };
  const RuntimeError error = CaughtFrom([&] { print({{good, bad}}); });
  QCOMPARE(error.Number(), 482);
  QCOMPARE(error.Subject(), u"the logo"_s);
  QVERIFY(!folder.Exists(u"/printer.pdf"_s));
  print({{good, good}});
  QVERIFY(folder.Size(u"/printer.pdf"_s) > 0);
}

namespace {
/// A job of three pages for a printer of the system, which writes into a file here.
struct ThreePages {
  void Print(const Progress& progress) {
    const PaperPage page{PaperText{1000, 1000, u"Text"_s, {u"Arial"_s}, 0}};
    QPrinter device(QPrinter::HighResolution);
    device.setOutputFileName(Folder.Path(u"/printer.pdf"_s));
    PrintJob({{page, page, page}}, device, true, Fonts, progress);
  }
  bool Has(const QByteArray& pages) const {
    return Run(u"pdfinfo"_s, {Folder.Path(u"/printer.pdf"_s)}).contains("Pages:           " + pages + "\n");
  }
  TemporaryTree Folder;
  PaperFonts Fonts;
};
}  // namespace

void TestPdf::aPrinterOfTheSystemTellsItsPagesAndAStopSendsNothing() {
  ThreePages job;
  for (qint64 page = 1; page <= 3; ++page) {
    QCOMPARE(ErrorOf([&] { job.Print([page](qint64 done, qint64) { return done < page; }); }), 32755);
    QVERIFY(!job.Folder.Exists(u"/printer.pdf"_s));
  }
  QList<qint64> told;
  job.Print([&](qint64 done, qint64 total) {
    told << done << total;
    return true;
  });
  QCOMPARE(told, (QList<qint64>{1, 6, 2, 6, 3, 6, 4, 6, 5, 6, 6, 6}));
  QVERIFY(job.Has("3"));
}

void TestPdf::onceItsPagesAreSentAPrinterOfTheSystemGetsThemAll() {
  ThreePages job;
  qint64 last = 0;
  job.Print([&](qint64 done, qint64) {
    last = done;
    return done < 4;
  });
  // The stop is taken, and nothing shows any more that it was asked for: the box is gone.
  QCOMPARE(last, 4);
  QVERIFY(job.Has("3"));
}

void TestPdf::rulesAreSixTwipsWideAndBlack() {
  Printed printed(0);
  printed.Print();
  const QImage picture = printed.Picture();
  QCOMPARE(picture.size(), QSize(3060, 3960));
  // In the middle of each rule black, ten twips beside it white.
  for (const QPoint& point : {QPoint(6000, 504), QPoint(6000, 5040), QPoint(6000, 6120), QPoint(6000, 12240),
                              QPoint(9000, 12600), QPoint(9000, 14400)}) {
    QCOMPARE(PixelAt(picture, point.x(), point.y()), 0U);
    QCOMPARE(PixelAt(picture, point.x(), point.y() - 10), 0xFFFFFFU);
    QCOMPARE(PixelAt(picture, point.x(), point.y() + 10), 0xFFFFFFU);
  }
  for (const QPoint& point : {QPoint(360, 3000), QPoint(11880, 3000), QPoint(1800, 9000), QPoint(3240, 9000),
                              QPoint(7920, 9000), QPoint(10080, 9000)}) {
    QCOMPARE(PixelAt(picture, point.x(), point.y()), 0U);
    QCOMPARE(PixelAt(picture, point.x() - 10, point.y()), 0xFFFFFFU);
    QCOMPARE(PixelAt(picture, point.x() + 10, point.y()), 0xFFFFFFU);
  }
}

void TestPdf::colorsAreOnPaperEvenInMonochromeMode() {
  Printed printed(0);
  printed.Print();
  QImage picture = printed.Picture();
  const QRect memo(1872, 12384, 1000, 224);
  const QRect total(10700, 14112, 820, 268);
  const QRect terms(1872, 13824, 1000, 268);
  const QRect title(7200, 720, 2000, 581);
  QVERIFY(HasColor(picture, memo, 0x0000FF));
  QVERIFY(HasColor(picture, total, 0xFF0000));
  QVERIFY(HasColor(picture, terms, 0x00FF00));
  QVERIFY(HasColor(picture, title, 0x204080));

  Printed plain(0);
  plain.Fixture.Look.ckColor = false;
  plain.Print();
  QCOMPARE(plain.Paper.ColorMode, 1);
  picture = plain.Picture();
  QVERIFY(HasColor(picture, memo, 0x0000FF));
  QVERIFY(!HasColor(picture, memo, 0x000000));
  QVERIFY(HasColor(picture, total, 0x000000));
  QVERIFY(HasColor(picture, terms, 0x000000));
}

void TestPdf::theLogoFillsItsPlace() {
  Printed printed(0);
  QImage logo(20, 10, QImage::Format_RGB32);
  logo.fill(QColor(200, 30, 40));
  QBuffer bytes(&printed.Fixture.Look.Logo);
  bytes.open(QIODevice::WriteOnly);
  logo.save(&bytes, "PNG");
  printed.Fixture.Look.LogoFrameWidth = 2040;
  printed.Fixture.Look.LogoWidth = 900;
  printed.Fixture.Look.LogoHeight = 1260;
  printed.Print();
  const QImage picture = printed.Picture();
  // From (5100, 720) to (6000, 1980).
  for (const QPoint& point : {QPoint(5110, 730), QPoint(5990, 730), QPoint(5110, 1970), QPoint(5990, 1970)})
    QCOMPARE(PixelAt(picture, point.x(), point.y()), 0xC81E28U);
  for (const QPoint& point : {QPoint(5090, 1000), QPoint(6010, 1000), QPoint(5500, 710), QPoint(5500, 1990)})
    QCOMPARE(PixelAt(picture, point.x(), point.y()), 0xFFFFFFU);
}

void TestPdf::aPackingSlipOfThreePages() {
  Printed printed(60);
  printed.AcceptDialog();
  printed.Fixture.Messages.Answers = {true, true};
  printed.Print([&](PrinterRoutines& routines, KVPrint& pages) {
    PrintPackingSlip({routines, pages, printed.Fixture.Messages}, printed.Fixture.Lines);
  });
  const QString info = QString::fromUtf8(Run(u"pdfinfo"_s, {printed.Pdf()}));
  QVERIFY2(info.contains(QRegularExpression(u"Pages: +3\n"_s)), qPrintable(info));
  PaperFonts fonts;
  for (int page = 1; page <= 3; ++page) {
    const PaperPage& recorded = printed.Fixture.Paper.PageOf(static_cast<std::size_t>(page));
    QCOMPARE(Difference(WordsOf(recorded, fonts), WordsOf(printed.Pdf(), page)), QString());
  }
}

void TestPdf::blankSheetsOnBothPapers() {
  for (const bool perforated : {false, true}) {
    Printed printed(0);
    printed.AcceptDialog();
    printed.Fixture.Look.optReturn = perforated;
    PageFixture& f = printed.Fixture;
    printed.Print([&](PrinterRoutines& routines, KVPrint& pages) {
      PrintBlanks({routines, pages, f.Look, f.Messages, f.Now}, u"1"_s);
    });
    PaperFonts fonts;
    QCOMPARE(Difference(WordsOf(f.Paper.PageOf(1), fonts), WordsOf(printed.Pdf(), 1)), QString());
    QCOMPARE(Run(u"pdftotext"_s, {printed.Pdf(), u"-"_s}).contains("Detach Here"), perforated);
  }
}

void TestPdf::narratives_data() {
  QTest::addColumn<QByteArray>("narrative");
  QTest::addColumn<bool>("tooBig");
  QTest::newRow("fitting") << QByteArray("We pruned all the trees, \"gently\"\r\nand left.\r\n") << false;
  QTest::newRow("overflowing") << QByteArray("a\r\nb\r\nc\r\nd\r\ne\r\nf\r\ng\r\nh\r\ni\r\n") << true;
  QTest::newRow("empty") << QByteArray() << false;
  // A "w" is 144.4 twips wide: 80 of them pass the right rule at 11880 and end before the edge of the sheet.
  QTest::newRow("one very long word") << QByteArray(80, 'w') << false;
}

void TestPdf::narratives() {
  QFETCH(QByteArray, narrative);
  QFETCH(bool, tooBig);
  Printed printed(3);
  printed.Fixture.Write(u"/KarvexInvoicer/Narratives/2500.txt"_s, narrative);
  printed.Print();
  PaperFonts fonts;
  QCOMPARE(Difference(WordsOf(printed.Fixture.Paper.PageOf(1), fonts), WordsOf(printed.Pdf(), 1)), QString());
  QVERIFY(Run(u"pdftotext"_s, {printed.Pdf(), u"-"_s}).contains("Details"));
  QCOMPARE(!printed.Fixture.Messages.Messages.filter(u"Narrative is to Big"_s).isEmpty(), tooBig);
}

QTEST_MAIN(TestPdf)
#include "tst_pdf.moc"
