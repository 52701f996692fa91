/// The pass over the customers' records that finds some of them by a text in one field, or all of them.
#pragma once

#include <array>
#include <vector>

#include "customers/CustomerRecord.h"

class RecordBuffer;

/// What can be searched, in the order of `optSearch`.
inline constexpr std::array<TextField, 9> SearchedFields{
    CustomerField::AcctName, CustomerField::Address1, CustomerField::Address2,
    CustomerField::CityLine, CustomerField::State,    CustomerField::PostalLine,
    CustomerField::Phone,    CustomerField::LastName, CustomerField::AcctNo};
inline constexpr qint16 EveryCustomer = 10;

struct CustomerQuery {
  qint16 Criterion = EveryCustomer;  ///< An index of `SearchedFields`; `EveryCustomer` finds all, whatever the text.
  QByteArray UpperText;              ///< As `UpperCased` makes it. The empty text stands in every field.
};

struct FoundCustomer {
  int Record;
  QString Name;  ///< `AcctName` of a business, the person's name of an individual.
  QString Phone;
};

/// Trimmed of blanks, in the files' code page, each letter as its capital: so an accented letter finds itself.
QByteArray UpperCased(QStringView text);

/// The hits among records 1 to `count`, in file order. The text may stand anywhere in the field.
std::vector<FoundCustomer> FindInRecords(const RecordBuffer& records, int count, const CustomerQuery& query);
