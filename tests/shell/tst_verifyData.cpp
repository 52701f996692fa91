// Keystroke filters and small normalisers.
#include <QtTest>

#include "runtime/Dialogs.h"
#include "shell/VerifyDataRoutines.h"

using namespace Qt::StringLiterals;

namespace {

/// Writes down beeps and boxes in their order.
class NotedDialogs final : public Dialogs {
 public:
  QStringList noted;
  void ShowMessage(const QString& text, const QString& title) override { noted << text + u" | "_s + title; }
  bool AskYesNo(const QString&, const QString&) override { return Unasked<bool>(); }
  bool AskOkCancel(const QString&, const QString&) override { return Unasked<bool>(); }
  QString AskText(const QString&, const QString&) override { return Unasked<QString>(); }
  void Beep() override { noted << u"beep"_s; }
  QString ChooseFile(const QString&, const QString&) override { return Unasked<QString>(); }
  quint32 ChooseColor(quint32) override { return Unasked<quint32>(); }
  QString ChooseFont(const QString&) override { return Unasked<QString>(); }
  void OpenPage(const QString&) override { noted << u"page"_s; }

 private:
  template <typename Answer>
  Answer Unasked() {
    noted << u"a question nobody expects"_s;
    return {};
  }
};

const QStringList slashRefused{u"beep"_s, u"This character, (/) is invalid for this field | Invalid Key entry"_s};

}  // namespace

class VerifyDataTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void aNumberCannotBeginWithAZero() {
    QCOMPARE(VerifyDecimalKey('0', u""_s), 0);
    QCOMPARE(VerifyDecimalKey('.', u""_s), int{'.'});
    QCOMPARE(VerifyDecimalKey('0', u"5"_s), int{'0'});
  }

  void aSecondPointIsSwallowed() {
    QCOMPARE(VerifyDecimalKey('.', u"1.5"_s), 0);
    QCOMPARE(VerifyDecimalKey('.', u"15"_s), int{'.'});
  }

  void aDecimalBoxTakesDigitsAndThePointOnly() {
    for (int key = 0; key < 256; ++key) {
      const bool passes = (key >= '0' && key <= '9') || key == '.';
      QCOMPARE(VerifyDecimalKey(key, u"7"_s), passes ? key : 0);
    }
    QCOMPARE(VerifyDecimalKey(8, u"7"_s), 0);  // Backspace is swallowed here
    QCOMPARE(VerifyDecimalKey('-', u""_s), 0);
  }

  void aDigitBoxTakesDigitsAndBackspace() {
    for (int key = 0; key < 256; ++key) {
      const bool passes = (key >= '0' && key <= '9') || key == 8;
      QCOMPARE(VerifyDigitKey(key), passes ? key : 0);
    }
    QCOMPARE(VerifyDigitKey(0x0661), 0);  // a digit of another script
  }

  void aFileNameBoxRefusesSevenCharacters() {
    for (int key = 1; key < 256; ++key) {
      NotedDialogs dialogs;
      const bool refused = QByteArray(",&.\\*/?").contains(static_cast<char>(key)) && key < 128;
      QCOMPARE(VerifyFileNameKey(key, u"abc"_s, dialogs), refused ? 0 : key);
      QCOMPARE(IsRefusedInFileNames(key), refused);
      QCOMPARE(dialogs.noted.size(), refused ? 2 : 0);
    }
  }

  void theRefusalNamesTheCharacter() {
    NotedDialogs dialogs;
    QCOMPARE(VerifyFileNameKey('/', u"abc"_s, dialogs), 0);
    QCOMPARE(dialogs.noted, slashRefused);
    dialogs.noted.clear();
    QCOMPARE(VerifyFileNameKey('/', u""_s, dialogs), 0);  // an empty box holds no number
    QCOMPARE(dialogs.noted, slashRefused);
  }

  void aBoxThatHoldsANumberTakesAnyKey() {
    NotedDialogs dialogs;
    for (const int key : {',', '&', '.', '\\', '*', '/', '?'}) QCOMPARE(VerifyFileNameKey(key, u"123"_s, dialogs), key);
    QVERIFY(dialogs.noted.isEmpty());
    QVERIFY(IsRefusedInFileNames('/'));
  }

  void backspacePassesTheNameAndQuoteFilters() {
    NotedDialogs dialogs;
    QCOMPARE(VerifyFileNameKey(8, u"abc"_s, dialogs), 8);
    QCOMPARE(VerifyQuoteKey(8, dialogs), 8);
    QVERIFY(dialogs.noted.isEmpty());
  }

  void aKeyBeyondTheCodesPasses() {
    NotedDialogs dialogs;
    QCOMPARE(VerifyFileNameKey(0x20ac, u"abc"_s, dialogs), 0x20ac);
    QCOMPARE(VerifyFileNameKey(0x012c, u"abc"_s, dialogs), 0x012c);  // ends in the comma's byte
  }

  void theDoubleQuoteIsRefused() {
    NotedDialogs dialogs;
    QCOMPARE(VerifyQuoteKey('"', dialogs), 0);
    QCOMPARE(dialogs.noted,
             (QStringList{u"beep"_s, u"This character, (\") is invalid for this field | Invalid Key entry"_s}));
    QCOMPARE(VerifyQuoteKey('\'', dialogs), int{'\''});
    QCOMPARE(dialogs.noted.size(), 2);
  }

  void aBoxWithoutQuotesRefusesATypedOneAndDropsAPastedOne() {
    NotedDialogs dialogs;
    const KeyFilters filters = QuoteFilters(dialogs);
    for (const auto& filter : {filters.Typed, filters.Pasted}) QCOMPARE(filter('a'), int{'a'});
    QCOMPARE(filters.Pasted('"'), 0);
    QVERIFY(dialogs.noted.isEmpty());
    QCOMPARE(filters.Typed('"'), 0);
    QCOMPARE(dialogs.noted.last(), u"This character, (\") is invalid for this field | Invalid Key entry"_s);
  }

  void aCurrencyBoxTakesItsForm_data() {
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("shown");
    QTest::newRow("plain") << u"12.5"_s << u"$12.50"_s;
    QTest::newRow("grouped") << u"1,234.5"_s << u"$1,234.50"_s;
    QTest::newRow("negative") << u"-3"_s << u"($3.00)"_s;
    QTest::newRow("its own form") << u"($3.00)"_s << u"($3.00)"_s;
    QTest::newRow("half a cent") << u"0.005"_s << u"$0.01"_s;
    QTest::newRow("blanks around") << u" 7 "_s << u"$7.00"_s;
  }
  void aCurrencyBoxTakesItsForm() {
    QFETCH(QString, typed);
    QFETCH(QString, shown);
    NotedDialogs dialogs;
    QVERIFY(VerifyCurrencyBox(typed, dialogs));
    QCOMPARE(typed, shown);
    QVERIFY(dialogs.noted.isEmpty());
  }

  void aCurrencyBoxRoundsOnce() {
    NotedDialogs dialogs;
    QString box = u"12.34499"_s;
    QVERIFY(VerifyCurrencyBox(box, dialogs));
    QCOMPARE(box, u"$12.34"_s);
  }

  void aCurrencyBoxThatIsNoAmountIsEmptiedWithABeep() {
    for (const QString& text : {u"abc"_s, u""_s, u"12abc"_s}) {
      NotedDialogs dialogs;
      QString box = text;
      QVERIFY(!VerifyCurrencyBox(box, dialogs));
      QVERIFY(box.isEmpty());
      QCOMPARE(dialogs.noted, QStringList{u"beep"_s});
    }
  }

  void aPersonsName_data() {
    QTest::addColumn<QStringList>("parts");
    QTest::addColumn<QString>("name");
    QTest::newRow("all four") << QStringList{u"Mr"_s, u"John"_s, u"Q"_s, u"Public"_s} << u"Mr John Q. Public"_s;
    QTest::newRow("none") << QStringList{u""_s, u""_s, u""_s, u""_s} << u""_s;
    QTest::newRow("blanks are none") << QStringList{u" "_s, u"  "_s, u" "_s, u" "_s} << u""_s;
    QTest::newRow("trimmed") << QStringList{u" Mr "_s, u" John"_s, u"Q "_s, u" Public "_s} << u"Mr John Q. Public"_s;
    QTest::newRow("no title, no initial") << QStringList{u""_s, u"John"_s, u""_s, u"Public"_s} << u"John Public"_s;
    QTest::newRow("no last name keeps the blank") << QStringList{u"Mr"_s, u"John"_s, u""_s, u""_s} << u"Mr John "_s;
    QTest::newRow("initial last keeps the blank") << QStringList{u""_s, u""_s, u"Q"_s, u""_s} << u"Q. "_s;
    QTest::newRow("last name alone") << QStringList{u""_s, u""_s, u""_s, u"Public"_s} << u"Public"_s;
  }
  void aPersonsName() {
    QFETCH(QStringList, parts);
    QFETCH(QString, name);
    QCOMPARE(BuildPersonName(parts[0], parts[1], parts[2], parts[3]), name);
  }
};

QTEST_GUILESS_MAIN(VerifyDataTest)
#include "tst_verifyData.moc"
