#include "support/PageFixture.h"

#include <cmath>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <stdexcept>

using namespace Qt::StringLiterals;

void MessageRecorder::ShowMessage(const QString& text, const QString& title) {
  Messages.append(title + u": "_s + text);
}
bool MessageRecorder::AskYesNo(const QString& text, const QString& title) {
  if (Answers.isEmpty()) throw std::logic_error("no question expected");
  Messages.append(title + u"? "_s + text);
  return Answers.takeFirst();
}
bool MessageRecorder::AskOkCancel(const QString&, const QString&) {
  throw std::logic_error("no question expected");
}
QString MessageRecorder::AskText(const QString&, const QString&) {
  throw std::logic_error("no input box expected");
}
QString MessageRecorder::ChooseFile(const QString&, const QString&) {
  throw std::logic_error("no dialog expected");
}
quint32 MessageRecorder::ChooseColor(quint32) {
  throw std::logic_error("no dialog expected");
}
QString MessageRecorder::ChooseFont(const QString&) {
  throw std::logic_error("no dialog expected");
}
void MessageRecorder::OpenPage(const QString&) {
  throw std::logic_error("no page expected");
}

PageFixture::PageFixture()
    : Store(Device),
      Disk(Store, Root.path(), u"KarvexInvoicer"_s),
      Routines(Paper, Look, Dialog),
      Pages(Routines, Disk, Messages, Now, {Business, Look, Tax}),
      Lines(u"^QTY|<Description|^Date|>Price|>Total|^Tax"_s, 101) {
  Business.BusinessName = u"Orchard Supply"_s;
  Business.BusinessAddress1 = u"1 Grove Road"_s;
  Business.BusinessCity = u"Tampa"_s;
  Business.BusinessState = u"FL"_s;
  Business.BusinessPostal = u"33602"_s;
  Business.BusinessTelephone = u"813-555-0100"_s;
  Business.AddressStyleCaption = u"USA Style Address"_s;
  Look.txtBorders = 0x0000AA;
  Look.txtData = 0x804020;
  Tax.cboTaxHeading1 = u"Sales Tax"_s;
  Tax.cboTaxHeading2 = u"County Tax"_s;
  Page.Heading = {u"1001"_s, u"3/7/2026"_s, u"2500"_s, u"4711"_s};
  Page.SoldTo = {u"John Public"_s, u"2 Lime Street"_s, {}, u"Orlando"_s, u"FL"_s, u"32801"_s};
  Page.Lines = &Lines;
  Page.Totals = {u"$66.66"_s, u"$4.67"_s, u"$0.00"_s, u"$5.00"_s, u""_s, u"$76.33"_s};
}

void PageFixture::Write(const QString& name, const QByteArray& content) const {
  const QString path = Root.path() + name;
  QDir().mkpath(QFileInfo(path).path());
  QFile file(path);
  if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
    throw std::runtime_error("the test can't write its file");
}

void PageFixture::SetLine(int row, const QStringList& cells) {
  for (int column = 0; column < cells.size(); ++column) Lines.SetText(row, column, cells.at(column));
}

void PageFixture::FillLines(int count) {
  for (int row = 1; row <= count; ++row)
    SetLine(row, {u"1"_s, u"Line "_s + QString::number(row), u"3/7/2026"_s, u"$1.00"_s, u"$1.00"_s});
  Page.LineCount = static_cast<qint16>(count);
}

QString Described(const PaperText& run) {
  const QString color = u"%1%2%3"_s.arg(run.Color & 0xFF, 2, 16, QLatin1Char('0'))
                            .arg((run.Color >> 8) & 0xFF, 2, 16, QLatin1Char('0'))
                            .arg((run.Color >> 16) & 0xFF, 2, 16, QLatin1Char('0'));
  return u"%1 %2 %3%4%5 %6 %7"_s.arg(std::lround(run.X))
      .arg(static_cast<double>(run.Y), 0, 'f', 1)
      .arg(run.Font.Size)
      .arg(run.Font.Bold ? u"b"_s : QString(), run.Font.Underline ? u"u"_s : QString(), color, run.Text);
}

QString Described(const PaperRule& rule) {
  return u"%1,%2 %3,%4%5"_s.arg(rule.X1).arg(rule.Y1).arg(rule.X2).arg(rule.Y2).arg(rule.IsBox ? u" box"_s : QString());
}

QStringList Described(const std::vector<PaperText>& runs) {
  QStringList lines;
  for (const PaperText& run : runs) lines.append(Described(run));
  return lines;
}

QStringList Described(const std::vector<PaperRule>& rules) {
  QStringList lines;
  for (const PaperRule& rule : rules) lines.append(Described(rule));
  return lines;
}
