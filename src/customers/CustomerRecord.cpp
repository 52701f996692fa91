#include "customers/CustomerRecord.h"

#include "runtime/RecordFile.h"
#include "shell/VerifyDataRoutines.h"

namespace {
constexpr qsizetype TextsEnd = 324;
constexpr qsizetype AcctFlagOffset = 324;
}  // namespace

void CustomerRecord::Assign(QByteArrayView bytes) {
  m_bytes = bytes.first(qMin<qsizetype>(bytes.size(), Length)).toByteArray();
  if (m_bytes.size() < AcctFlagOffset + 2) {
    m_bytes.truncate(TextsEnd);  // Half a number is none.
  }
  if (m_bytes.size() < TextsEnd) {
    m_bytes.append(TextsEnd - m_bytes.size(), ' ');
  }
  m_bytes.append(Length - m_bytes.size(), '\0');
}

void CustomerRecord::Blank() {
  m_bytes.replace(0, TextsEnd, QByteArray(TextsEnd, ' '));
  SetText(CustomerField::AcctType, u"Business");
  SetAcctFlag(0);
}

QString CustomerRecord::Text(TextField field) const {
  return RecordView(m_bytes).Text(field.Offset, field.Width);
}

void CustomerRecord::SetText(TextField field, QStringView text) {
  m_bytes.replace(field.Offset, field.Width, RecordBuilder(field.Width).Text(0, field.Width, text).Record());
}

qint16 CustomerRecord::AcctFlag() const {
  return RecordView(m_bytes).Int16(AcctFlagOffset);
}

void CustomerRecord::SetAcctFlag(qint16 value) {
  m_bytes.replace(AcctFlagOffset, 2, RecordBuilder(2).Int16(0, value).Record());
}

bool CustomerRecord::IsBusiness() const {
  return Text(CustomerField::AcctType) == u"Business";
}

QString CustomerRecord::PersonName() const {
  return BuildPersonName(Text(CustomerField::Title), Text(CustomerField::FirstName), Text(CustomerField::MiddleInitial),
                         Text(CustomerField::LastName));
}

QString CustomerRecord::DisplayName() const {
  return IsBusiness() ? Text(CustomerField::AcctName) : PersonName();
}
