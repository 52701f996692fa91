// What an error tells, and whether it speaks of a damaged file.
#include <QtTest>

#include "runtime/RuntimeError.h"

using namespace Qt::StringLiterals;

class RuntimeErrorTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void everyNumberHasASentence_data() {
    QTest::addColumn<int>("number");
    for (const int number : {6, 9, 13, 52, 53, 57, 61, 62, 64, 70, 75, 76, 481, 482, 32755})
      QTest::addRow("%d", number) << number;
  }
  void everyNumberHasASentence() {
    QFETCH(int, number);
    const RuntimeError error(number, u"/Phone.txt"_s);
    QVERIFY(error.Text().endsWith(u'.'));
    QVERIFY(error.Text() != RuntimeError(1, {}).Text());
    QVERIFY(!error.Text().contains(u"Phone"_s));
    QCOMPARE(error.Number(), number);
    QCOMPARE(error.Subject(), u"/Phone.txt"_s);
  }

  void anErrorEndsTheEventUnlessItIsDamage() {
    const RuntimeError error(13, u"txtUnits"_s, u"Words of its own."_s);
    QCOMPARE(error.From(), RuntimeError::Origin::Event);
    const RuntimeError damage = error.AsFileContent(u"/Labor.txt"_s);
    QCOMPARE(damage.From(), RuntimeError::Origin::FileContent);
    QCOMPARE(damage.Number(), 13);
    QCOMPARE(damage.Subject(), u"/Labor.txt"_s);
    QCOMPARE(damage.Text(), u"Words of its own."_s);
  }

  void damageOfAFileThatTheUserAskedForEndsTheEvent() {
    const RuntimeError damage =
        RuntimeError(62, u"/Labor.txt"_s, u"Words of its own."_s, RuntimeError::Origin::FileContent)
            .WithAdvice(u"Mend it."_s);
    const RuntimeError error = damage.AsEvent(u"/Other.txt"_s);
    QCOMPARE(error.From(), RuntimeError::Origin::Event);
    QCOMPARE(error.Number(), 62);
    QCOMPARE(error.Subject(), u"/Other.txt"_s);
    QCOMPARE(error.Text(), u"Words of its own."_s);
    QCOMPARE(error.Advice(), u"Mend it."_s);
    QCOMPARE(error.what(), "error 62, /Other.txt: Words of its own.");
  }

  void theUserReadsEveryFileByItsFullPath() {
    const QString root = u"/home/me/oranges"_s;
    const auto shown = [&](const RuntimeError& error) { return error.ShownSubject(root); };
    QCOMPARE(shown(RuntimeError(62, u"/Phone.txt"_s)), u"/home/me/oranges/Phone.txt"_s);
    QCOMPARE(shown(RuntimeError(62, u"\\SoldItems.txt"_s)), u"/home/me/oranges/SoldItems.txt"_s);
    QCOMPARE(shown(RuntimeError(13, {}).AsFileContent(u"\\KarvexProposals\\b.txt"_s)),
             u"/home/me/oranges/KarvexProposals/b.txt"_s);
    QCOMPARE(shown(RuntimeError::AtPath(70, u"/home/me/oranges/Phone.txt"_s)), u"/home/me/oranges/Phone.txt"_s);
    // A file elsewhere stays what it is, whatever its path begins with.
    QCOMPARE(shown(RuntimeError::AtPath(481, u"/pictures/logo.png"_s)), u"/pictures/logo.png"_s);
    QCOMPARE(shown(RuntimeError::AtPath(61, u"/a\\b.pdf"_s).WithAdvice(u"Make room."_s)), u"/a\\b.pdf"_s);
    QCOMPARE(shown(RuntimeError(13, u"txtUnits"_s)), u"txtUnits"_s);
    QCOMPARE(shown(RuntimeError(9, {})), QString());
  }

  void anErrorAtAPathSaysTheUsualOrItsOwn() {
    const RuntimeError usual = RuntimeError::AtPath(61, u"/a/b"_s);
    QCOMPARE(usual.Number(), 61);
    QCOMPARE(usual.Subject(), u"/a/b"_s);
    QCOMPARE(usual.Text(), u"The disk is full."_s);
    QCOMPARE(usual.From(), RuntimeError::Origin::Event);
    QCOMPARE(RuntimeError::AtPath(61, u"/a/b"_s, u"Own."_s).Text(), u"Own."_s);
  }

  void theWholeErrorCanBeRead() {
    QCOMPARE(RuntimeError(61, u"/Labor.txt"_s).what(), "error 61, /Labor.txt: The disk is full.");
    QCOMPARE(RuntimeError(13, u"%2 %1"_s, u"%1."_s).what(), "error 13, %2 %1: %1.");
  }
};

QTEST_GUILESS_MAIN(RuntimeErrorTest)
#include "tst_runtimeError.moc"
