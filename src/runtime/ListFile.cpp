#include "runtime/ListFile.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <QLocale>

#include "runtime/CodePage.h"
#include "runtime/Numbers.h"
#include "runtime/RuntimeError.h"

using namespace Qt::StringLiterals;

ListReader::ListReader(QString fileName, QByteArray content)
    : m_fileName(std::move(fileName)), m_content(std::move(content)) {}

bool ListReader::AtEnd() const {
  return m_position >= m_content.size();
}

void ListReader::RequireMore() const {
  if (m_open && !*m_open) throw RuntimeError(ErrorNumber::BadFileNumber, m_fileName);
  if (AtEnd()) throw RuntimeError(ErrorNumber::InputPastEnd, m_fileName, RuntimeError::Origin::FileContent);
}

qsizetype ListReader::LineEnd(qsizetype from, qsizetype feed) const {
  return feed > from && m_content[feed - 1] == '\r' ? feed - 1 : feed;
}

qsizetype ListReader::FieldEnd(qsizetype from) const {
  // No further than the comma: a line of a million fields would be searched to its end for each of them.
  const auto begin = m_content.cbegin() + from;
  const auto stop = std::find_if(begin, m_content.cend(), [](char c) { return c == ',' || c == '\n'; });
  return stop != m_content.cend() && *stop == ',' ? stop - m_content.cbegin()
                                                  : LineEnd(from, stop - m_content.cbegin());
}

qsizetype ListReader::PastLineEnd(qsizetype end) const {
  if (end < m_content.size() && m_content[end] == '\r') ++end;
  if (end < m_content.size() && m_content[end] == '\n') ++end;
  return end;
}

QString ListReader::ReadLine() {
  RequireMore();
  const qsizetype feed = m_content.indexOf('\n', m_position);
  const qsizetype end = LineEnd(m_position, feed < 0 ? m_content.size() : feed);
  const QByteArrayView line = QByteArrayView(m_content).sliced(m_position, end - m_position);
  m_position = PastLineEnd(end);
  return FromCodePage(line);
}

QString ListReader::ReadString() {
  RequireMore();
  while (!AtEnd() && m_content[m_position] == ' ') ++m_position;
  qsizetype begin = m_position;
  qsizetype end = begin;
  const bool quoted = !AtEnd() && m_content[begin] == '"';
  if (quoted) {
    end = m_content.indexOf('"', ++begin);
    if (end < 0) end = m_content.size();
    m_position = std::min(end + 1, m_content.size());
  }
  const qsizetype fieldEnd = FieldEnd(m_position);
  const bool endsAtComma = fieldEnd < m_content.size() && m_content[fieldEnd] == ',';
  if (!quoted) end = fieldEnd;
  m_position = endsAtComma ? fieldEnd + 1 : PastLineEnd(fieldEnd);
  return FromCodePage(QByteArrayView(m_content).sliced(begin, end - begin));
}

double ListReader::ReadNumber() {
  const QString text = ReadString();
  try {
    return ToNumber(text);
  } catch (const RuntimeError& error) {
    throw error.AsFileContent(m_fileName);
  }
}

qint16 ListReader::ReadInt16() {
  const double value = ReadNumber();
  try {
    return ToInt16(value);
  } catch (const RuntimeError& error) {
    throw error.AsFileContent(m_fileName);
  }
}

qint32 ListReader::ReadInt32() {
  const double value = ReadNumber();
  try {
    return ToInt32(value);
  } catch (const RuntimeError& error) {
    throw error.AsFileContent(m_fileName);
  }
}

bool ListReader::ReadBoolean() {
  const QString text = TrimBlanks(ReadString());
  if (text.compare("#TRUE#"_L1, Qt::CaseInsensitive) == 0) return true;
  if (text.compare("#FALSE#"_L1, Qt::CaseInsensitive) == 0) return false;
  try {
    return ToNumber(text) != 0;
  } catch (const RuntimeError& error) {
    throw error.AsFileContent(m_fileName);
  }
}

void ListWriter::Separate() {
  if (m_lineBegun) m_content += ',';
  m_lineBegun = true;
}

ListWriter& ListWriter::Field(const QString& text) {
  Separate();
  m_content += '"' + ToCodePage(text) + '"';
  return *this;
}

ListWriter& ListWriter::Field(double number) {
  Separate();
  m_content += QByteArray::number(number, 'g', QLocale::FloatingPointShortest);
  return *this;
}

ListWriter& ListWriter::Field(float number) {
  Separate();
  std::array<char, 32> digits;
  const std::to_chars_result end = std::to_chars(digits.data(), digits.data() + digits.size(), number);
  m_content.append(digits.data(), end.ptr - digits.data());
  return *this;
}

ListWriter& ListWriter::Field(int number) {
  Separate();
  m_content += QByteArray::number(number);
  return *this;
}

ListWriter& ListWriter::Field(bool value) {
  Separate();
  m_content += value ? "#TRUE#" : "#FALSE#";
  return *this;
}

ListWriter& ListWriter::EndLine() {
  m_content += "\r\n";
  m_lineBegun = false;
  return *this;
}

ListWriter& ListWriter::Print(const QString& text) {
  m_content += ToCodePage(text);
  return EndLine();
}
