/// Customer records for tests, put together by hand from the widths of their fields.
#pragma once

#include <QByteArray>

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
  record.CityShort = city;
  record.AcctType = "Business";
  return record.Bytes();
}

/// Businesses "Name 1" to "Name <count>" with the numbers of their places.
inline QByteArray Many(int count) {
  QByteArray all;
  for (int i = 1; i <= count; ++i) all += BusinessRecord(QByteArray::number(i), "Name " + QByteArray::number(i));
  return all;
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
