/// The customer rules without a screen: a data tree in a temporary folder, a fixed day, queued answers, and boxes that
/// only hold their texts.
#pragma once

#include <map>
#include <QtTest>

#include "customers/CustomerEditor.h"
#include "runtime/Clock.h"
#include "runtime/Dialogs.h"
#include "setup/BusinessProfile.h"
#include "shell/CommonDiskRoutines.h"
#include "support/FailingDevice.h"

class FixedClock final : public Clock {
 public:
  QDate Today() const override { return QDate(2026, 3, 7); }
};

/// Notes each box as "title|text". A question takes the next queued answer; one that nobody queued fails the test.
class NotedDialogs final : public Dialogs {
 public:
  QStringList Shown;
  QList<bool> Answers;
  int Beeps = 0;

  void ShowMessage(const QString& text, const QString& title) override { Shown.append(title + u'|' + text); }
  bool AskYesNo(const QString& text, const QString& title) override {
    Shown.append(title + u'|' + text);
    if (Answers.isEmpty()) {
      QTest::qFail("A question that the test doesn't expect", __FILE__, __LINE__);
      return false;
    }
    return Answers.takeFirst();
  }
  void Beep() override { ++Beeps; }
  QString ChooseFile(const QString&, const QString&) override { return {}; }
  quint32 ChooseColor(quint32 current) override { return current; }
  QString ChooseFont(const QString& current) override { return current; }
  void OpenPage(const QString&) override {}
};

class PlainView final : public CustomerView {
 public:
  std::map<CustomerBox, QString> Boxes;
  QString Focus;
  bool Business = false;
  bool Usa = false;
  QString Caption;
  QString AuxCaption;
  int SearchFramesHidden = 0;
  int AuxiliaryLoads = 0;
  QStringList Accounts;
  QList<int> Records;
  QStringList Cities;

  QString Text(CustomerBox box) const override {
    const auto at = Boxes.find(box);
    return at == Boxes.end() ? QString() : at->second;
  }
  void SetText(CustomerBox box, const QString& text) override { Boxes[box] = text; }
  void FocusOn(CustomerBox box) override { Focus = QStringLiteral("box %1").arg(static_cast<int>(box)); }
  void FocusOnSelect() override { Focus = QStringLiteral("select"); }
  void ShowNameBoxes(bool business) override { Business = business; }
  void ShowAddressBoxes(bool usa) override { Usa = usa; }
  void SetCustomerCaption(const QString& caption) override { Caption = caption; }
  void SetAuxCaption(const QString& caption) override { AuxCaption = caption; }
  void HideSearchFrames() override { ++SearchFramesHidden; }
  void LoadAuxiliaryBoxes() override { ++AuxiliaryLoads; }
  void SetAccounts(const QStringList& accounts, const QList<int>& records) override {
    Accounts = accounts;
    Records = records;
  }
  void SetCities(const QStringList& cities) override { Cities = cities; }
  void AddCity(const QString& city) override { Cities.append(city); }
};

/// Counts what is read, so that a test sees a scan where a single record would do.
class MeteredDevice final : public FailingDevice {
 public:
  qint64 BytesRead = 0;

  qint64 Read(int descriptor, char* data, qint64 size, qint64 offset) override {
    const qint64 read = FailingDevice::Read(descriptor, data, size, offset);
    BytesRead += read;
    return read;
  }
};

/// A data tree with the folders that the customer rules write into.
struct CustomerTree {
  QTemporaryDir Root;
  MeteredDevice Device;
  FileStore Store{Device};
  CommonDiskRoutines Disk{Store, Root.path(), QStringLiteral("KarvexInvoicer")};

  CustomerTree() {
    QDir root(Root.path());
    root.mkpath(QStringLiteral("Backup/KVActiveAccounts"));
    root.mkpath(QStringLiteral("KVActiveAccounts"));
  }
  void Put(const QString& name, const QByteArray& content) const {
    QFile file(Root.path() + name);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(content), content.size());
  }
  QByteArray Bytes(const QString& name) const {
    QFile file(Root.path() + name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(absent)");
  }
  bool Has(const QString& name) const { return QFileInfo::exists(Root.path() + name); }
};

/// A record's bytes, put together by hand from the widths of its fields.
struct RecordText {
  QByteArray AcctNo, AcctName, Address1, Address2, CityLine, CityShort, State, PostalShort, PostalLine, Phone,
      CellPhone, Email, Title, FirstName, MiddleInitial, LastName, AcctType;
  QByteArray Flag = QByteArray("\0\0", 2);
  QByteArray Reserved = QByteArray("\0\0", 2);

  QByteArray Bytes() const {
    return AcctNo.leftJustified(20) + AcctName.leftJustified(45) + Address1.leftJustified(35) +
           Address2.leftJustified(25) + CityLine.leftJustified(25) + CityShort.leftJustified(20) +
           State.leftJustified(2) + PostalShort.leftJustified(10) + PostalLine.leftJustified(25) +
           Phone.leftJustified(13) + CellPhone.leftJustified(13) + Email.leftJustified(30) + Title.leftJustified(10) +
           FirstName.leftJustified(15) + MiddleInitial.leftJustified(1) + LastName.leftJustified(25) +
           AcctType.leftJustified(10) + Flag + Reserved;
  }
};

inline QByteArray BusinessRecord(const QByteArray& number, const QByteArray& name, const QByteArray& city = "Reno") {
  RecordText record;
  record.AcctNo = number;
  record.AcctName = name;
  record.CityLine = city;
  record.AcctType = "Business";
  return record.Bytes();
}

inline QByteArray PersonRecord(const QByteArray& number, const QByteArray& first, const QByteArray& initial,
                               const QByteArray& last) {
  RecordText record;
  record.AcctNo = number;
  record.AcctName = "kept";
  record.Title = "Mr.";
  record.FirstName = first;
  record.MiddleInitial = initial;
  record.LastName = last;
  record.AcctType = "Individual";
  return record.Bytes();
}
