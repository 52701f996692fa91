// The line text format: what is written, and what odd files read as.
#include <QElapsedTimer>
#include <QtTest>

#include "runtime/ListFile.h"
#include "support/ErrorOf.h"

using namespace Qt::StringLiterals;

namespace {

/// All fields of a content, by the delimited read.
QStringList Fields(const QByteArray& content) {
  ListReader reader(u"/Test.txt"_s, content);
  QStringList fields;
  while (!reader.AtEnd()) fields.append(reader.ReadString());
  return fields;
}

QStringList Lines(const QByteArray& content) {
  ListReader reader(u"/Test.txt"_s, content);
  QStringList lines;
  while (!reader.AtEnd()) lines.append(reader.ReadLine());
  return lines;
}

ListReader Reader(const QByteArray& content) {
  return ListReader(u"/Test.txt"_s, content);
}

}  // namespace

class ListFileTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void fieldsOfALineStandBetweenCommas() {
    ListWriter writer;
    writer.Field(u"Smith, John"_s).Field(12).Field(0.5).Field(true).Field(false).Field(QString()).EndLine();
    writer.Field(-3.25).EndLine();
    writer.Print(u"plain, \"text\""_s);
    QCOMPARE(writer.Content(), "\"Smith, John\",12,0.5,#TRUE#,#FALSE#,\"\"\r\n-3.25\r\nplain, \"text\"\r\n");
  }

  void textIsWrittenInTheCodePage() {
    QCOMPARE(ListWriter().Field(899.6F).Field(1440.0F).Field(0.1F).Field(-2.25F).EndLine().Content(),
             "899.6,1440,0.1,-2.25\r\n");
    QCOMPARE(ListWriter().Field(u"\u20ac\u0105"_s).EndLine().Content(), "\"\x80?\"\r\n");
  }

  void whatWasWrittenReadsBack() {
    ListReader reader = Reader("\"Smith, John\",12,0.5,#TRUE#,#FALSE#,\"\"\r\n-3.25\r\n");
    QCOMPARE(reader.ReadString(), u"Smith, John"_s);
    QCOMPARE(int{reader.ReadInt16()}, 12);
    QCOMPARE(reader.ReadNumber(), 0.5);
    QCOMPARE(reader.ReadBoolean(), true);
    QCOMPARE(reader.ReadBoolean(), false);
    QCOMPARE(reader.ReadString(), QString());
    QCOMPARE(reader.ReadNumber(), -3.25);
    QVERIFY(reader.AtEnd());
  }

  void fieldsAreDelimited_data() {
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QStringList>("fields");
    QTest::newRow("nothing") << QByteArray() << QStringList{};
    QTest::newRow("CR LF") << QByteArray("a,b\r\nc\r\n") << QStringList{u"a"_s, u"b"_s, u"c"_s};
    QTest::newRow("LF") << QByteArray("a,b\nc\n") << QStringList{u"a"_s, u"b"_s, u"c"_s};
    QTest::newRow("no last line end") << QByteArray("a\r\nb") << QStringList{u"a"_s, u"b"_s};
    QTest::newRow("an empty line is an empty field")
        << QByteArray("a\r\n\r\nb\r\n") << QStringList{u"a"_s, u""_s, u"b"_s};
    QTest::newRow("only an empty line") << QByteArray("\r\n") << QStringList{u""_s};
    QTest::newRow("empty between commas") << QByteArray("a,,b\r\n") << QStringList{u"a"_s, u""_s, u"b"_s};
    QTest::newRow("empty before the line end") << QByteArray("a,\r\nb\r\n") << QStringList{u"a"_s, u""_s, u"b"_s};
    QTest::newRow("blanks before") << QByteArray("  a,  \"b\"\r\n") << QStringList{u"a"_s, u"b"_s};
    QTest::newRow("blanks inside and behind a bare one") << QByteArray("a b ,c\r\n") << QStringList{u"a b "_s, u"c"_s};
    QTest::newRow("blanks inside quotes") << QByteArray("\"  a \"\r\n") << QStringList{u"  a "_s};
    QTest::newRow("comma inside quotes") << QByteArray("\"a,b\",c\r\n") << QStringList{u"a,b"_s, u"c"_s};
    QTest::newRow("line end inside quotes") << QByteArray("\"a\r\nb\",c\r\n") << QStringList{u"a\r\nb"_s, u"c"_s};
    QTest::newRow("text behind a closing quote") << QByteArray("\"a\"xy,b\r\n") << QStringList{u"a"_s, u"b"_s};
    QTest::newRow("text behind, to the line end") << QByteArray("\"a\"xy\r\nb\r\n") << QStringList{u"a"_s, u"b"_s};
    QTest::newRow("a quote inside a text breaks it") << QByteArray("\"6\" nail\",2\r\n") << QStringList{u"6"_s, u"2"_s};
    QTest::newRow("quotes inside a bare one") << QByteArray("a\"b\",c\r\n") << QStringList{u"a\"b\""_s, u"c"_s};
    QTest::newRow("a quote that never closes") << QByteArray("\"a,b\r\nc") << QStringList{u"a,b\r\nc"_s};
    QTest::newRow("only a quote") << QByteArray("\"") << QStringList{u""_s};
    QTest::newRow("only blanks") << QByteArray("  ") << QStringList{u""_s};
    QTest::newRow("a comma at the very end") << QByteArray("a,") << QStringList{u"a"_s};
    QTest::newRow("a return alone is a character") << QByteArray("a\rb\r\n") << QStringList{u"a\rb"_s};
    QTest::newRow("a return at the very end") << QByteArray("a\r") << QStringList{u"a"_s};
    QTest::newRow("code page") << QByteArray("\"\x80\"\r\n") << QStringList{u"\u20ac"_s};
  }
  void fieldsAreDelimited() {
    QFETCH(QByteArray, content);
    QFETCH(QStringList, fields);
    QCOMPARE(Fields(content), fields);
  }

  void wholeLinesKeepCommasAndQuotes() {
    QCOMPARE(Lines("Net 10, 2%\r\n\"Due\"\r\n\r\n  x  \nlast"),
             (QStringList{u"Net 10, 2%"_s, u"\"Due\""_s, u""_s, u"  x  "_s, u"last"_s}));
    QCOMPARE(Lines("").size(), 0);
    QCOMPARE(Lines("\n\n").size(), 2);
  }

  void aLineOfAMillionFieldsIsReadInOnePass() {
    QElapsedTimer time;
    time.start();
    QCOMPARE(Fields(QByteArray(1'000'000, ',')).size(), 1'000'000);
    // A search to the line's end for each of them would take minutes.
    QVERIFY2(time.elapsed() < 5000, qPrintable(u"%1 ms"_s.arg(time.elapsed())));
  }

  void aLineReadAfterAFieldTakesTheRestOfTheLine() {
    ListReader reader = Reader("a,b,c\r\nd\r\n");
    QCOMPARE(reader.ReadString(), u"a"_s);
    QCOMPARE(reader.ReadLine(), u"b,c"_s);
    QCOMPARE(reader.ReadLine(), u"d"_s);
  }

  void aReadPastTheEndIsDamageOfTheFile() {
    ListReader reader = Reader("a\r\n");
    reader.ReadString();
    for (const RuntimeError& error :
         {CaughtFrom([&] { reader.ReadString(); }), CaughtFrom([&] { reader.ReadLine(); }),
          CaughtFrom([&] { reader.ReadInt16(); }), CaughtFrom([&] { reader.ReadInt32(); }),
          CaughtFrom([&] { reader.ReadNumber(); }), CaughtFrom([&] { reader.ReadBoolean(); }),
          CaughtFrom([] { Reader("").ReadString(); })}) {
      QCOMPARE(error.Number(), 62);
      QCOMPARE(error.Subject(), u"/Test.txt"_s);
      QCOMPARE(error.From(), RuntimeError::Origin::FileContent);
    }
  }

  void whatIsNoNumberIsDamageOfTheFile_data() {
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("letters") << QByteArray("abc\r\n");
    QTest::newRow("an empty field") << QByteArray(",1\r\n");
    QTest::newRow("an empty line") << QByteArray("\r\n");
    QTest::newRow("an empty text") << QByteArray("\"\"\r\n");
    QTest::newRow("a number with a tail") << QByteArray("12abc\r\n");
  }
  void whatIsNoNumberIsDamageOfTheFile() {
    QFETCH(QByteArray, content);
    for (const RuntimeError& error :
         {CaughtFrom([&] { Reader(content).ReadNumber(); }), CaughtFrom([&] { Reader(content).ReadInt16(); }),
          CaughtFrom([&] { Reader(content).ReadInt32(); }), CaughtFrom([&] { Reader(content).ReadBoolean(); })}) {
      QCOMPARE(error.Number(), 13);
      QCOMPARE(error.Subject(), u"/Test.txt"_s);
      QCOMPARE(error.From(), RuntimeError::Origin::FileContent);
    }
  }

  void aNumberBeyondItsWidthIsDamageOfTheFile() {
    const RuntimeError narrow = CaughtFrom([] { Reader("32768\r\n").ReadInt16(); });
    QCOMPARE(narrow.Number(), 6);
    QCOMPARE(narrow.From(), RuntimeError::Origin::FileContent);
    const RuntimeError wide = CaughtFrom([] { Reader("2147483648\r\n").ReadInt32(); });
    QCOMPARE(wide.Number(), 6);
    QCOMPARE(wide.Subject(), u"/Test.txt"_s);
    QCOMPARE(CaughtFrom([] { Reader("1E400\r\n").ReadNumber(); }).From(), RuntimeError::Origin::FileContent);
  }

  void numbersInAFile() {
    QCOMPARE(int{Reader("2.5\r\n").ReadInt16()}, 2);
    QCOMPARE(int{Reader("\"7\"\r\n").ReadInt16()}, 7);
    QCOMPARE(Reader(" -2147483648 \r\n").ReadInt32(), std::numeric_limits<qint32>::min());
    QCOMPARE(Reader("0.5\n").ReadNumber(), 0.5);
  }

  void booleansInAFile() {
    QVERIFY(Reader("#true#\r\n").ReadBoolean());
    QVERIFY(Reader("-1\r\n").ReadBoolean());
    QVERIFY(Reader("1\r\n").ReadBoolean());
    QVERIFY(!Reader("0\r\n").ReadBoolean());
    QVERIFY(!Reader("#FALSE# \r\n").ReadBoolean());
  }

  void aFileThatIsClosedCannotBeReadOn() {
    ListReader reader = Reader("a,b\r\n");
    const auto open = std::make_shared<bool>(true);
    reader.Attach(open);
    QCOMPARE(reader.ReadString(), u"a"_s);
    *open = false;
    const RuntimeError error = CaughtFrom([&] { reader.ReadString(); });
    QCOMPARE(error.Number(), 52);
    QCOMPARE(error.From(), RuntimeError::Origin::Event);
  }

  void aLongFileIsReadInOnePass() {
    // With a search to the end of the file for every field this would take minutes.
    QByteArray content;
    for (int i = 0; i < 400000; ++i) content += "\"some text\"\r\n";
    QCOMPARE(Fields(content).size(), 400000);
  }
};

QTEST_GUILESS_MAIN(ListFileTest)
#include "tst_listFile.moc"
