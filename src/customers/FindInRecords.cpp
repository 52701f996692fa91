#include "customers/FindInRecords.h"

#include <algorithm>

#include "runtime/CodePage.h"
#include "runtime/Numbers.h"
#include "runtime/RecordFile.h"
#include "shell/VerifyDataRoutines.h"

namespace {

QString TextOf(const RecordView& record, TextField field) {
  return record.Text(field.Offset, field.Width);
}

FoundCustomer Described(const RecordView& record, int number) {
  const bool business = record.TextEquals(CustomerField::AcctType.Offset, CustomerField::AcctType.Width, "Business");
  return {number,
          business
              ? TextOf(record, CustomerField::AcctName)
              : BuildPersonName(TextOf(record, CustomerField::Title), TextOf(record, CustomerField::FirstName),
                                TextOf(record, CustomerField::MiddleInitial), TextOf(record, CustomerField::LastName)),
          TextOf(record, CustomerField::Phone)};
}

/// Looks for one text in many fields without copying or decoding them.
class Searcher {
 public:
  explicit Searcher(const CustomerQuery& query) : m_query(query), m_capitals(CapitalsOfCodePage()) {}

  bool IsHit(const RecordView& record) const {
    if (m_query.Criterion == EveryCustomer) {
      return true;
    }
    const TextField field = SearchedFields.at(static_cast<std::size_t>(m_query.Criterion));
    const QByteArrayView text = record.TextBytes(field.Offset, field.Width);
    const auto capitalsAlike = [this](char stored, char wanted) {
      return m_capitals[static_cast<unsigned char>(stored)] == wanted;
    };
    return m_query.UpperText.isEmpty() || std::search(text.begin(), text.end(), m_query.UpperText.begin(),
                                                      m_query.UpperText.end(), capitalsAlike) != text.end();
  }

 private:
  const CustomerQuery& m_query;
  std::array<char, 256> m_capitals;
};

}  // namespace

QByteArray UpperCased(QStringView text) {
  const std::array<char, 256> capitals = CapitalsOfCodePage();
  QByteArray bytes = ToCodePage(TrimBlanks(text));
  for (char& byte : bytes) {
    byte = capitals[static_cast<unsigned char>(byte)];
  }
  return bytes;
}

std::vector<FoundCustomer> FindInRecords(const RecordBuffer& records, int count, const CustomerQuery& query) {
  const Searcher searcher(query);
  std::vector<FoundCustomer> found;
  for (int i = 1; i <= count; ++i) {
    const RecordView record = records.Record(i);
    if (searcher.IsHit(record)) {
      found.push_back(Described(record, i));
    }
  }
  return found;
}
