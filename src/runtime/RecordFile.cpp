#include "runtime/RecordFile.h"

#include <bit>
#include <cmath>
#include <limits>
#include <QtEndian>
#include <stdexcept>

#include "runtime/CodePage.h"
#include "runtime/RuntimeError.h"

namespace {

/// What the record holds of the range; shorter, or empty, where the record ends before it.
QByteArrayView Slice(QByteArrayView bytes, qsizetype offset, qsizetype width) {
  if (offset >= bytes.size()) return {};
  return bytes.sliced(offset, std::min(width, bytes.size() - offset));
}

QByteArrayView Trimmed(QByteArrayView bytes) {
  const auto isBlank = [](char c) { return c == ' ' || c == '\0'; };
  while (!bytes.isEmpty() && isBlank(bytes.front())) bytes = bytes.sliced(1);
  while (!bytes.isEmpty() && isBlank(bytes.back())) bytes.chop(1);
  return bytes;
}

template <typename Int>
Int Number(QByteArrayView bytes, qsizetype offset) {
  const QByteArrayView field = Slice(bytes, offset, sizeof(Int));
  if (field.size() < static_cast<qsizetype>(sizeof(Int))) return 0;
  return qFromLittleEndian<Int>(field.data());
}

template <typename Int>
QByteArray Encoded(Int value) {
  QByteArray bytes(sizeof(Int), '\0');
  qToLittleEndian(value, bytes.data());
  return bytes;
}

}  // namespace

QString RecordView::Text(qsizetype offset, qsizetype width) const {
  return FromCodePage(Trimmed(Slice(m_bytes, offset, width)));
}

QString RecordView::RawText(qsizetype offset, qsizetype width) const {
  return FromCodePage(Slice(m_bytes, offset, width)).leftJustified(width, u' ');
}

qint16 RecordView::Int16(qsizetype offset) const {
  return Number<qint16>(m_bytes, offset);
}
qint32 RecordView::Int32(qsizetype offset) const {
  return Number<qint32>(m_bytes, offset);
}
Currency RecordView::Amount(qsizetype offset) const {
  return Currency::FromUnits(Number<qint64>(m_bytes, offset));
}
double RecordView::Double(qsizetype offset) const {
  return std::bit_cast<double>(Number<quint64>(m_bytes, offset));
}

QByteArrayView RecordView::TextBytes(qsizetype offset, qsizetype width) const {
  return Trimmed(Slice(m_bytes, offset, width));
}

bool RecordView::TextEquals(qsizetype offset, qsizetype width, QByteArrayView codePageText) const {
  return TextBytes(offset, width) == codePageText;
}

RecordBuilder& RecordBuilder::Text(qsizetype offset, qsizetype width, QStringView text) {
  return Bytes(offset, ToCodePage(text).leftJustified(width, ' ', true));
}

RecordBuilder& RecordBuilder::Int16(qsizetype offset, qint16 value) {
  return Bytes(offset, Encoded(value));
}
RecordBuilder& RecordBuilder::Int32(qsizetype offset, qint32 value) {
  return Bytes(offset, Encoded(value));
}
RecordBuilder& RecordBuilder::Amount(qsizetype offset, Currency value) {
  return Bytes(offset, Encoded(value.Units()));
}
RecordBuilder& RecordBuilder::Double(qsizetype offset, double value) {
  return Bytes(offset, Encoded(std::bit_cast<quint64>(value)));
}

RecordBuilder& RecordBuilder::Bytes(qsizetype offset, QByteArrayView bytes) {
  if (offset < 0 || bytes.size() > m_bytes.size() - offset) {
    throw std::logic_error("a field beyond the end of its record");
  }
  std::copy(bytes.begin(), bytes.end(), m_bytes.begin() + offset);
  return *this;
}

QByteArrayView RecordBuffer::Bytes(qsizetype number) const {
  if (number < 1) return {};
  return Slice(m_content, (number - 1) * m_length, m_length);
}

qint64 RecordsIn(qint64 fileLength, int recordLength) {
  // The default rounding mode: ties to even.
  return static_cast<qint64>(std::nearbyint(static_cast<double>(fileLength) / recordLength));
}

int RecordCountOf(qint64 fileLength, int recordLength, const QString& fileName) {
  const qint64 count = RecordsIn(fileLength, recordLength);
  if (fileLength > std::numeric_limits<qint32>::max() || count > RecordLimit) {
    throw RuntimeError(ErrorNumber::Overflow, fileName, RuntimeError::Origin::FileContent);
  }
  return static_cast<int>(count);
}
