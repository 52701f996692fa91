/// The line text format: fields separated by commas, strings in double quotes with no escaping, lines ended by
/// CR LF. Read with either line end.
#pragma once

#include <memory>
#include <QByteArray>
#include <QString>

/// Reads fields and lines out of one file's content, which is held whole.
///
/// A field of the delimited read: blanks before it are skipped; a quoted one runs to the next quote, whatever stands
/// between, and what follows the closing quote up to the comma or line end is dropped; a bare one runs to the comma
/// or the line end. An empty line is an empty field. Errors name the file and count as damage of it
/// (`Origin::FileContent`): 62 for a read past the end, 13 for a number that isn't one.
class ListReader {
 public:
  ListReader(QString fileName, QByteArray content);

  bool AtEnd() const;
  QString ReadLine();    ///< A whole line, without its end.
  QString ReadString();  ///< One delimited field.
  double ReadNumber();   ///< An empty field is error 13.
  qint16 ReadInt16();    ///< Rounds to the nearest, ties to even; error 6 beyond 16 bits.
  qint32 ReadInt32();
  bool ReadBoolean();  ///< `#TRUE#`, `#FALSE#`, or a number (0 is false).
  const QString& FileName() const { return m_fileName; }
  /// Set false when the program closes all files: every later read is error 52.
  void Attach(std::shared_ptr<bool> open) { m_open = std::move(open); }

 private:
  void RequireMore() const;
  /// The end of the line's text, in front of its CR: `feed` is where its LF stands, or the content's end.
  qsizetype LineEnd(qsizetype from, qsizetype feed) const;
  qsizetype FieldEnd(qsizetype from) const;  ///< The next comma, or the end of the line's text.
  qsizetype PastLineEnd(qsizetype end) const;
  QString m_fileName;
  QByteArray m_content;
  qsizetype m_position = 0;
  std::shared_ptr<bool> m_open;
};

/// Builds the content of a line text file.
class ListWriter {
 public:
  /// Fields of one `Write` stand on one line: strings quoted, numbers bare with a point, booleans `#TRUE#`/`#FALSE#`.
  ListWriter& Field(const QString& text);
  ListWriter& Field(double number);
  ListWriter& Field(float number);  ///< With no more digits than single precision needs to read back.
  ListWriter& Field(int number);
  ListWriter& Field(bool value);
  ListWriter& EndLine();
  /// The plain print: the text as it stands, then CR LF.
  ListWriter& Print(const QString& text);

  const QByteArray& Content() const { return m_content; }

 private:
  void Separate();
  QByteArray m_content;
  bool m_lineBegun = false;
};
