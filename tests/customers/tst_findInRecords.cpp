// The pass over the customers' records: which of them a search finds, and how it names them.
#include <QtTest>

#include "customers/CustomerRecords.h"
#include "customers/FindInRecords.h"
#include "runtime/RecordFile.h"

using namespace Qt::StringLiterals;

class FindInRecordsTest : public QObject {
  Q_OBJECT

  static QList<int> Hits(const QByteArray& content, int count, qint16 criterion, const QString& text) {
    QList<int> hits;
    const CustomerQuery query{criterion, UpperCased(text)};
    for (const FoundCustomer& customer : FindInRecords(RecordBuffer(content, 328), count, query)) {
      hits.append(customer.Record);
    }
    return hits;
  }
  static QByteArray With(QByteArray RecordText::*field, const QByteArray& text) {
    RecordText record;
    record.AcctType = "Business";
    record.*field = text;
    return record.Bytes();
  }

 private Q_SLOTS:
  void eachCriterionSearchesItsOwnField_data() {
    QTest::addColumn<int>("criterion");
    QTest::addColumn<QByteArray>("record");
    QTest::newRow("business name") << 0 << With(&RecordText::AcctName, "xq");
    QTest::newRow("address 1") << 1 << With(&RecordText::Address1, "xq");
    QTest::newRow("address 2") << 2 << With(&RecordText::Address2, "xq");
    QTest::newRow("city") << 3 << With(&RecordText::CityLine, "xq");
    QTest::newRow("state") << 4 << With(&RecordText::State, "xq");
    QTest::newRow("postal code") << 5 << With(&RecordText::PostalLine, "xq");
    QTest::newRow("telephone") << 6 << With(&RecordText::Phone, "xq");
    QTest::newRow("last name") << 7 << With(&RecordText::LastName, "xq");
    QTest::newRow("account number") << 8 << With(&RecordText::AcctNo, "xq");
  }
  void eachCriterionSearchesItsOwnField() {
    QFETCH(int, criterion);
    QFETCH(QByteArray, record);
    for (qint16 i = 0; i < 9; ++i) {
      QCOMPARE(Hits(record, 1, i, u"xq"_s), i == criterion ? QList<int>{1} : QList<int>{});
    }
  }

  void theFieldsThatAreNeverReadAreNotSearched() {
    const QByteArray record = With(&RecordText::CityShort, "xq") + With(&RecordText::PostalShort, "xq") +
                              With(&RecordText::CellPhone, "xq") + With(&RecordText::Email, "xq") +
                              With(&RecordText::FirstName, "xq");
    for (qint16 i = 0; i < 9; ++i) QCOMPARE(Hits(record, 5, i, u"xq"_s), QList<int>{});
  }

  void theTextMayStandAnywhereInWhateverCase() {
    const QByteArray file = With(&RecordText::Address1, "12 Park Lane") + With(&RecordText::Address1, "ARK") +
                            With(&RecordText::Address1, "A R K") + With(&RecordText::Address1, "Dock; bark");
    QCOMPARE(Hits(file, 4, 1, u"ark"_s), (QList<int>{1, 2, 4}));
    QCOMPARE(Hits(file, 4, 1, u"  aRk  "_s), (QList<int>{1, 2, 4}));
    QCOMPARE(Hits(file, 4, 1, u"park lane"_s), QList<int>{1});
    QCOMPARE(Hits(file, 4, 1, u"park  lane"_s), QList<int>{});
    QCOMPARE(Hits(file, 4, 1, u"12 park lane west"_s), QList<int>{});
  }

  void anAccentedLetterFindsItselfInEitherCase() {
    const QByteArray file = With(&RecordText::AcctName, "Caf\xe9 Z\xfcrich") + With(&RecordText::AcctName, "CAF\xc9") +
                            With(&RecordText::AcctName, "Cafe") + With(&RecordText::AcctName, "\x9eivot") +
                            With(&RecordText::AcctName, "Stra\xdf\x65");
    QCOMPARE(Hits(file, 5, 0, u"caf\u00e9"_s), (QList<int>{1, 2}));
    QCOMPARE(Hits(file, 5, 0, u"CAF\u00c9"_s), (QList<int>{1, 2}));
    QCOMPARE(Hits(file, 5, 0, u"cafe"_s), QList<int>{3});
    QCOMPARE(Hits(file, 5, 0, u"\u017dIVOT"_s), QList<int>{4});
    QCOMPARE(Hits(file, 5, 0, u"stra\u00dfe"_s), QList<int>{5});
  }

  void aTextAcrossTwoFieldsIsNotFound() {
    RecordText record;
    record.AcctNo = QByteArray(20, 'a');
    record.AcctName = "b";
    QCOMPARE(Hits(record.Bytes(), 1, 8, u"ab"_s), QList<int>{});
    QCOMPARE(Hits(record.Bytes(), 1, 0, u"ab"_s), QList<int>{});
  }

  void blanksFindEverybodyAndSoDoesNoCriterion() {
    const QByteArray file = With(&RecordText::AcctName, "One") + QByteArray(328, '\0');
    QCOMPARE(Hits(file, 3, 0, u"   "_s), (QList<int>{1, 2, 3}));  // The third isn't written yet.
    QCOMPARE(Hits(file, 3, EveryCustomer, u"All"_s), (QList<int>{1, 2, 3}));
  }

  void onlyTheRecordsCountedAreSearched() {
    const QByteArray file = With(&RecordText::AcctName, "One") + With(&RecordText::AcctName, "One");
    QCOMPARE(Hits(file, 1, 0, u"one"_s), QList<int>{1});
    QCOMPARE(Hits(file, 0, 0, u"one"_s), QList<int>{});
  }

  void aBusinessIsNamedByItsNameAndAPersonByHisNames() {
    RecordText person;
    person.AcctName = "kept";
    person.Title = "Mr.";
    person.FirstName = "John";
    person.MiddleInitial = "Q";
    person.LastName = "Public";
    person.Phone = " 352-555-0187";
    person.AcctType = "Individual";
    RecordText business = person;
    business.AcctType = " Business";
    RecordText blank = person;
    blank.AcctType = "";
    const QByteArray file = person.Bytes() + business.Bytes() + blank.Bytes();
    const std::vector<FoundCustomer> found = FindInRecords(RecordBuffer(file, 328), 3, {});
    QCOMPARE(found.size(), 3U);
    QCOMPARE(found[0].Name, u"Mr. John Q. Public"_s);
    QCOMPARE(found[0].Phone, u"352-555-0187"_s);
    QCOMPARE(found[1].Name, u"kept"_s);
    QCOMPARE(found[2].Name, u"Mr. John Q. Public"_s);
    QCOMPARE(found[2].Record, 3);
  }
};

QTEST_GUILESS_MAIN(FindInRecordsTest)
#include "tst_findInRecords.moc"
