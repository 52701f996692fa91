/// One customer as /CustomerData.txt holds him: 328 bytes, texts in fixed fields, padded with blanks.
#pragma once

#include <QByteArray>
#include <QString>

/// Where a text stands in a record, in bytes.
struct TextField {
  qsizetype Offset;
  qsizetype Width;
};

namespace CustomerField {
inline constexpr TextField AcctNo{0, 20};
inline constexpr TextField AcctName{20, 45};
inline constexpr TextField Address1{65, 35};
inline constexpr TextField Address2{100, 25};
inline constexpr TextField CityLine{125, 25};   ///< The city, or the third address line of the international style.
inline constexpr TextField CityShort{150, 20};  ///< Written for other programs, never read back.
inline constexpr TextField State{170, 2};
inline constexpr TextField PostalShort{172, 10};  ///< Written for other programs, never read back.
inline constexpr TextField PostalLine{182, 25};   ///< The postal code, or the fourth address line.
inline constexpr TextField Phone{207, 13};
inline constexpr TextField CellPhone{220, 13};
inline constexpr TextField Email{233, 30};
inline constexpr TextField Title{263, 10};
inline constexpr TextField FirstName{273, 15};
inline constexpr TextField MiddleInitial{288, 1};
inline constexpr TextField LastName{289, 25};
inline constexpr TextField AcctType{314, 10};
}  // namespace CustomerField

/// The record's bytes with names on them. A record that was never read holds zero bytes, which read as blanks.
class CustomerRecord {
 public:
  static constexpr int Length = 328;

  CustomerRecord() = default;
  explicit CustomerRecord(QByteArrayView bytes) { Assign(bytes); }

  /// Takes a record as read. What a short one lacks becomes blanks in the texts and zero in the rest.
  void Assign(QByteArrayView bytes);
  /// Blanks every text for a new business; `AcctFlag` becomes 0. The reserved bytes stay what they were.
  void Blank();

  QString Text(TextField field) const;  ///< Trimmed of blanks.
  /// Padded with blanks, cut at the width.
  void SetText(TextField field, QStringView text);
  /// Carried through every load and save; nothing gives it a meaning.
  qint16 AcctFlag() const;
  void SetAcctFlag(qint16 value);

  /// "Business" or not; a blank type counts as an individual's.
  bool IsBusiness() const;
  QString PersonName() const;   ///< `BuildPersonName` of the four name fields.
  QString DisplayName() const;  ///< `AcctName` of a business, the person's name of an individual.

  const QByteArray& Bytes() const { return m_bytes; }

 private:
  QByteArray m_bytes = QByteArray(Length, '\0');
};
