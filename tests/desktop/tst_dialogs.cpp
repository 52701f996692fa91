// The user's boxes and dialogs, the real ones.
#include <QColorDialog>
#include <QDesktopServices>
#include <QDirIterator>
#include <QFileDialog>
#include <QFontDialog>

#include "desktop/QtDialogs.h"
#include "support/BenchScreen.h"
#include "support/QueuedAnswers.h"
#include "support/ScreenDriver.h"
#include "support/TemporaryTree.h"

using namespace Qt::StringLiterals;

namespace {

/// Where the toolkit keeps its settings is asked for once, before any test.
const QTemporaryDir& Home() {
  static const QTemporaryDir home;
  return home;
}
[[maybe_unused]] const bool AtHome =
    qputenv("XDG_CONFIG_HOME", Home().path().toLocal8Bit()) && qputenv("HOME", Home().path().toLocal8Bit());

int NumberThrownBy(const std::function<void()>& call) {
  try {
    call();
  } catch (const RuntimeError& error) {
    return error.Number();
  }
  return 0;
}

/// Stands where the user's browser does, for pages on the disk and on the web, and is gone with its scope.
class Browser : public QObject {
  Q_OBJECT

 public:
  enum class Can { Start, NotStart };

  explicit Browser(Can can = Can::Start) {
    for (const QString& scheme : Schemes()) {
      // A routine that isn't there can't be called: to the caller that is a browser that doesn't start.
      QDesktopServices::setUrlHandler(scheme, this, can == Can::Start ? "Open" : "NoSuchRoutine");
    }
  }
  ~Browser() override {
    for (const QString& scheme : Schemes()) QDesktopServices::unsetUrlHandler(scheme);
  }
  Browser(const Browser&) = delete;
  Browser& operator=(const Browser&) = delete;

  QList<QUrl> Opened;

 public Q_SLOTS:
  void Open(const QUrl& page) { Opened.append(page); }

 private:
  static QStringList Schemes() { return {u"file"_s, u"http"_s, u"https"_s}; }
};

}  // namespace

class UserDialogs : public QObject {
  Q_OBJECT

 private:
  RecordingHost m_host;
  std::unique_ptr<BenchScreen> m_screen;
  QtDialogs m_dialogs;

 private Q_SLOTS:
  void init() {
    m_screen = std::make_unique<BenchScreen>(m_host);
    m_screen->Add<QLineEdit>(u"box"_s);
    m_screen->show();
    m_screen->activateWindow();
    ScreenDriver::ProcessEvents();
  }
  void cleanup() { m_screen.reset(); }

  void aMessageHasItsTextItsTitleAndAnOkButton() {
    QueuedAnswers answers;
    answers.Ok();
    m_dialogs.ShowMessage(u"The Invoice is <b>full</b>"_s, u"Invoice"_s);
    QCOMPARE(answers.Last().Text, u"The Invoice is <b>full</b>"_s);
    QCOMPARE(answers.Last().Title, u"Invoice"_s);
    QCOMPARE(answers.Last().Buttons, QMessageBox::StandardButtons(QMessageBox::Ok));
  }

  void theTitleIsTheProgramsWhereNoneIsNamed() {
    QueuedAnswers answers;
    answers.Ok();
    m_dialogs.ShowMessage(u"x"_s);
    QCOMPARE(answers.Last().Title, u"Karvex Invoicer"_s);
  }

  void aQuestionIsAnsweredByYesOrNo() {
    QueuedAnswers answers;
    answers.Yes(u"Delete?"_s, u"Item Deletion"_s);
    QVERIFY(m_dialogs.AskYesNo(u"Delete?"_s, u"Item Deletion"_s));
    QCOMPARE(answers.Last().Buttons, QMessageBox::Yes | QMessageBox::No);
    answers.No();
    QVERIFY(!m_dialogs.AskYesNo(u"Delete?"_s));
  }

  void escapeIsNoAndClosesAMessage() {
    QueuedAnswers answers;
    answers.Escape();
    QVERIFY(!m_dialogs.AskYesNo(u"Delete?"_s));
    answers.Escape();
    m_dialogs.ShowMessage(u"x"_s);
    QCOMPARE(answers.Boxes().size(), 2);
  }

  void boxesKeepTheTextUnformattedAndTakeNoPartInMarkup() {
    QueuedAnswers answers;
    answers.Dialog([](QDialog& dialog) {
      QCOMPARE(dynamic_cast<QMessageBox&>(dialog).textFormat(), Qt::PlainText);
      QCOMPARE(dynamic_cast<QMessageBox&>(dialog).icon(), QMessageBox::NoIcon);
      dialog.accept();
    });
    m_dialogs.ShowMessage(u"1 < 2"_s);
  }

  void theOwnerIsTheActiveWindowAndIsActiveAgainAfterwards() {
    QueuedAnswers answers;
    QWidget* parent = nullptr;
    answers.Dialog([&](QDialog& dialog) {
      parent = dialog.parentWidget();
      dialog.accept();
    });
    m_dialogs.ShowMessage(u"x"_s);
    ScreenDriver::ProcessEvents();
    QCOMPARE(parent, m_screen.get());
    QTRY_VERIFY(m_screen->isActiveWindow());
  }

  void twoBoxesInARowHaveTheSameOwner() {
    QueuedAnswers answers;
    QList<QWidget*> parents;
    for (int i = 0; i < 2; ++i) {
      answers.Dialog([&](QDialog& dialog) {
        parents.append(dialog.parentWidget());
        dialog.accept();
      });
    }
    m_dialogs.ShowMessage(u"one"_s);
    m_dialogs.ShowMessage(u"two"_s);
    QCOMPARE(parents, (QList<QWidget*>{m_screen.get(), m_screen.get()}));
  }

  void aChosenFileIsItsPathAndCancelIsAnError() {
    QueuedAnswers answers;
    TemporaryTree tree;
    tree.Write(u"/logo.bmp"_s, "BM");
    answers.Dialog([&](QDialog& dialog) {
      auto& files = dynamic_cast<QFileDialog&>(dialog);
      QCOMPARE(files.windowTitle(), u"Find the Logo"_s);
      QCOMPARE(files.nameFilters(), (QStringList{u"Pictures (*.bmp *.jpg)"_s, u"All (*)"_s}));
      files.selectFile(tree.Path(u"/logo.bmp"_s));
      dialog.accept();
    });
    const QString filter = u"Pictures |(*.bmp;*.jpg)|All|*.*"_s;
    QCOMPARE(m_dialogs.ChooseFile(u"Find the Logo"_s, filter), tree.Path(u"/logo.bmp"_s));
    answers.File(tree.Path(u"/logo.bmp"_s));
    QCOMPARE(m_dialogs.ChooseFile(u"Find"_s, filter), tree.Path(u"/logo.bmp"_s));
    answers.CancelDialog();
    QCOMPARE(NumberThrownBy([&] { m_dialogs.ChooseFile(u"Find"_s, filter); }), 32755);
  }

  void theDialogsLeaveNothingInTheUsersHome() {
    QueuedAnswers answers;
    TemporaryTree tree;
    tree.Write(u"/logo.bmp"_s, "BM");
    answers.File(tree.Path(u"/logo.bmp"_s));
    m_dialogs.ChooseFile(u"Find"_s, u"All|*.*"_s);
    answers.Dialog([](QDialog& dialog) {
      QColorDialog::setCustomColor(0, Qt::red);
      dialog.accept();
    });
    m_dialogs.ChooseColor(0);
    answers.Dialog([](QDialog& dialog) { dialog.accept(); });
    m_dialogs.ChooseFont(u"Liberation Serif"_s);
    QVERIFY(QApplication::testAttribute(Qt::AA_DontUseNativeDialogs));
    QDirIterator left(Home().path(), QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    QVERIFY2(!left.hasNext(), qPrintable(left.next()));
  }

  void coloursArePackedBlueGreenRed() {
    QueuedAnswers answers;
    answers.Dialog([&](QDialog& dialog) {
      auto& colors = dynamic_cast<QColorDialog&>(dialog);
      QCOMPARE(colors.currentColor().rgb(), qRgb(0x03, 0x02, 0x01));
      colors.setCurrentColor(QColor(0x11, 0x22, 0x33));
      dialog.accept();
    });
    QCOMPARE(m_dialogs.ChooseColor(0x010203), 0x332211u);
    answers.Color(0x0000FF);
    QCOMPARE(m_dialogs.ChooseColor(0), 0x0000FFu);
    answers.CancelDialog();
    QCOMPARE(NumberThrownBy([&] { m_dialogs.ChooseColor(0); }), 32755);
  }

  void aChosenFontIsItsNameAndOnlyFontsThatPrintAreOffered() {
    QueuedAnswers answers;
    answers.Dialog([&](QDialog& dialog) {
      auto& fonts = dynamic_cast<QFontDialog&>(dialog);
      QVERIFY(fonts.testOption(QFontDialog::ScalableFonts));
      QVERIFY(!fonts.testOption(QFontDialog::NonScalableFonts));
      fonts.setCurrentFont(QFont(u"Liberation Serif"_s));
      dialog.accept();
    });
    QCOMPARE(m_dialogs.ChooseFont(u"Liberation Sans"_s), u"Liberation Serif"_s);
    answers.CancelDialog();
    QCOMPARE(NumberThrownBy([&] { m_dialogs.ChooseFont(u"Arial"_s); }), 32755);
  }

  void aFontThatIsNotInstalledStaysWhereTheUserLeavesItsStandIn() {
    QueuedAnswers answers;
    for (const QString& name : {u"Arial"_s, u"No Such Letters"_s}) {
      answers.Dialog([&](QDialog& dialog) {
        // The dialog opens on what the name prints as.
        QCOMPARE(dynamic_cast<QFontDialog&>(dialog).currentFont().family(), QFontInfo(QFont(name)).family());
        dialog.accept();
      });
      QCOMPARE(m_dialogs.ChooseFont(name), name);
    }
  }

  void aPageOnTheDiskOpensWhateverStandsInItsPath_data() {
    QTest::addColumn<QString>("path");
    QTest::addColumn<QByteArray>("address");
    QTest::newRow("plain") << u"/shop/manual/index.html"_s << QByteArray("file:///shop/manual/index.html");
    QTest::newRow("a blank") << u"/my shop/index.html"_s << QByteArray("file:///my%20shop/index.html");
    QTest::newRow("a number sign") << u"/shop #2/index.html"_s << QByteArray("file:///shop%20%232/index.html");
    QTest::newRow("a question mark") << u"/shop?/index.html"_s << QByteArray("file:///shop%3F/index.html");
    QTest::newRow("a per cent sign") << u"/5%20/index.html"_s << QByteArray("file:///5%2520/index.html");
    QTest::newRow("a letter of its own") << u"/Caf\u00e9/index.html"_s << QByteArray("file:///Caf%C3%A9/index.html");
  }
  void aPageOnTheDiskOpensWhateverStandsInItsPath() {
    QFETCH(QString, path);
    QFETCH(QByteArray, address);
    const QueuedAnswers none;
    const Browser browser;
    m_dialogs.OpenPage(path);
    QCOMPARE(browser.Opened.size(), 1);
    QCOMPARE(browser.Opened[0].toEncoded(), address);
    QCOMPARE(browser.Opened[0].toLocalFile(), path);
  }

  void aPageOfTheWebOpensByItsAddress_data() {
    QTest::addColumn<QString>("address");
    QTest::newRow("plain") << u"http://www.example.com/"_s;
    QTest::newRow("with a query and a place") << u"https://www.example.com/order/paper?kind=2&size=a#top"_s;
  }
  void aPageOfTheWebOpensByItsAddress() {
    QFETCH(QString, address);
    const QueuedAnswers none;
    const Browser browser;
    m_dialogs.OpenPage(address);
    QCOMPARE(browser.Opened.size(), 1);
    QCOMPARE(browser.Opened[0].toEncoded(), address.toLatin1());
  }

  void aBrowserThatDoesNotStartIsToldWithThePage_data() {
    QTest::addColumn<QString>("address");
    QTest::addColumn<QString>("told");
    QTest::newRow("on the disk") << u"/my shop/index.html"_s << u"file:///my shop/index.html"_s;
    QTest::newRow("on the web") << u"https://www.example.com/order"_s << u"https://www.example.com/order"_s;
  }
  void aBrowserThatDoesNotStartIsToldWithThePage() {
    QFETCH(QString, address);
    QFETCH(QString, told);
    QueuedAnswers answers;
    const Browser browser(Browser::Can::NotStart);
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"NoSuchRoutine"_s));
    answers.Ok(u"No browser could be started. The page is\n"_s + told, u"Karvex Invoicer"_s);
    m_dialogs.OpenPage(address);
    QCOMPARE(answers.Boxes().size(), 1);
    QVERIFY(browser.Opened.isEmpty());
  }
};

QTEST_MAIN(UserDialogs)
#include "tst_dialogs.moc"
