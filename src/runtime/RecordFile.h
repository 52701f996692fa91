/// Files of fixed-length records, numbered from 1, with no header; and the fields inside a record.
#pragma once

#include <QByteArray>
#include <QString>

#include "runtime/Currency.h"

/// Reads the fields of one record. Bytes that a short last record lacks read as blanks in a text and make a number
/// zero; so a record past the end of a file reads as a blank record.
class RecordView {
 public:
  explicit RecordView(QByteArrayView bytes) : m_bytes(bytes) {}
  QString Text(qsizetype offset, qsizetype width) const;     ///< Trimmed of blanks and zero bytes at both ends.
  QString RawText(qsizetype offset, qsizetype width) const;  ///< Untrimmed, exactly `width` characters.
  qint16 Int16(qsizetype offset) const;                      ///< Little-endian, as are the following.
  qint32 Int32(qsizetype offset) const;
  Currency Amount(qsizetype offset) const;
  double Double(qsizetype offset) const;
  /// The trimmed text as the bytes of the files' code page: what a scan compares without decoding.
  QByteArrayView TextBytes(qsizetype offset, qsizetype width) const;
  /// Whether the text field, trimmed, equals `codePageText` (already converted and trimmed): no decoding.
  bool TextEquals(qsizetype offset, qsizetype width, QByteArrayView codePageText) const;

 private:
  QByteArrayView m_bytes;
};

/// Builds one record of a fixed length, blank to begin with. Texts are cut at the width and padded with blanks. A field
/// that doesn't lie in the record is a mistake of the program: std::logic_error.
class RecordBuilder {
 public:
  explicit RecordBuilder(qsizetype length) : m_bytes(length, ' ') {}
  RecordBuilder& Text(qsizetype offset, qsizetype width, QStringView text);
  RecordBuilder& Int16(qsizetype offset, qint16 value);
  RecordBuilder& Int32(qsizetype offset, qint32 value);
  RecordBuilder& Amount(qsizetype offset, Currency value);
  RecordBuilder& Double(qsizetype offset, double value);
  RecordBuilder& Bytes(qsizetype offset, QByteArrayView bytes);
  const QByteArray& Record() const { return m_bytes; }

 private:
  QByteArray m_bytes;
};

/// All records of a file in one buffer: what a scan walks over.
class RecordBuffer {
 public:
  RecordBuffer(QByteArray content, qsizetype recordLength) : m_content(std::move(content)), m_length(recordLength) {}
  /// Record `number`, from 1; what lies past the end is absent (see RecordView).
  QByteArrayView Bytes(qsizetype number) const;
  RecordView Record(qsizetype number) const { return RecordView(Bytes(number)); }
  const QByteArray& Content() const { return m_content; }

 private:
  QByteArray m_content;
  qsizetype m_length;
};

/// How many records a file may hold: one more and it couldn't be counted, so nobody appends it.
inline constexpr int RecordLimit = 32767;

/// File length divided by record length in double precision, to the nearest, ties to even; without a limit.
qint64 RecordsIn(qint64 fileLength, int recordLength);

/// `RecordsIn`, as a 16-bit number. Above `RecordLimit` throws
/// RuntimeError 6 that names the file and counts as damage of it.
int RecordCountOf(qint64 fileLength, int recordLength, const QString& fileName);
