#include "desktop/QtDialogs.h"

#include <QApplication>
#include <QColorDialog>
#include <QDesktopServices>
#include <QDir>
#include <QFileDialog>
#include <QFontDialog>
#include <QFontInfo>
#include <QInputDialog>
#include <QMessageBox>
#include <QUrl>

#include "desktop/DialogOwner.h"
#include "desktop/PackedColor.h"
#include "runtime/RuntimeError.h"
#include "runtime/ToolkitSettings.h"

using namespace Qt::StringLiterals;

namespace {

int ShowBox(const QString& text, const QString& title, QMessageBox::StandardButtons buttons,
            QMessageBox::StandardButton escape, QMessageBox::Icon icon = QMessageBox::NoIcon) {
  const DialogOwner owner;
  QMessageBox box(icon, title.isEmpty() ? u"Karvex Invoicer"_s : title, text, buttons, owner.Window());
  box.setTextFormat(Qt::PlainText);
  box.setEscapeButton(escape);
  return box.exec();
}

[[noreturn]] void ThrowCancelled(const QString& dialog) {
  throw RuntimeError(ErrorNumber::DialogCancelled, dialog);
}

/// "Pictures |(*.bmp;*.jpg)|All|*.*" as "Pictures (*.bmp *.jpg);;All (*)".
QString ToolkitFilter(const QString& filter) {
  const QStringList parts = filter.split(u'|');
  QStringList filters;
  for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
    QString patterns = parts[i + 1];
    patterns.remove(u'(').remove(u')').replace(u';', u' ').replace("*.*"_L1, "*"_L1);
    filters.append(u"%1 (%2)"_s.arg(parts[i].trimmed(), patterns.simplified()));
  }
  return filters.join(";;"_L1);
}

}  // namespace

QtDialogs::QtDialogs() {
  KeepNoToolkitSettings();
  // A desktop's own dialogs would keep such things of their own.
  QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
}

void QtDialogs::ShowMessage(const QString& text, const QString& title) {
  ShowBox(text, title, QMessageBox::Ok, QMessageBox::Ok);
}

bool QtDialogs::AskYesNo(const QString& text, const QString& title) {
  return ShowBox(text, title, QMessageBox::Yes | QMessageBox::No, QMessageBox::No) == QMessageBox::Yes;
}

bool QtDialogs::AskOkCancel(const QString& text, const QString& title) {
  return ShowBox(text, title, QMessageBox::Ok | QMessageBox::Cancel, QMessageBox::Cancel, QMessageBox::Warning) ==
         QMessageBox::Ok;
}

QString QtDialogs::AskText(const QString& prompt, const QString& title) {
  const DialogOwner owner;
  QInputDialog box(owner.Window());
  box.setWindowTitle(title);
  box.setLabelText(prompt);
  return box.exec() == QDialog::Accepted ? box.textValue() : QString();
}

void QtDialogs::Beep() {
  QApplication::beep();
}

QString QtDialogs::ChooseFile(const QString& title, const QString& filter) {
  const DialogOwner owner;
  const QString chosen = QFileDialog::getOpenFileName(owner.Window(), title, QDir::homePath(), ToolkitFilter(filter));
  if (chosen.isEmpty()) {
    ThrowCancelled(title);
  }
  return chosen;
}

quint32 QtDialogs::ChooseColor(quint32 current) {
  const DialogOwner owner;
  const QColor chosen = QColorDialog::getColor(ColorFromPacked(current), owner.Window());
  if (!chosen.isValid()) {
    ThrowCancelled(u"Color"_s);
  }
  return PackedFromColor(chosen);
}

QString QtDialogs::ChooseFont(const QString& current) {
  const DialogOwner owner;
  // A name that isn't installed has a stand-in: the dialog opens on that, and where it is left there the name stays.
  const QString shown = QFontInfo(QFont(current)).family();
  QFontDialog dialog(QFont(shown), owner.Window());
  // Only scalable fonts come out on paper as they look on the screen.
  dialog.setOptions(QFontDialog::ScalableFonts);
  if (dialog.exec() != QDialog::Accepted) {
    ThrowCancelled(u"Font"_s);
  }
  const QString chosen = dialog.selectedFont().family();
  return chosen == shown ? current : chosen;
}

void QtDialogs::OpenPage(const QString& address) {
  const QUrl url = QUrl::fromUserInput(address, QString(), QUrl::AssumeLocalFile);
  if (!QDesktopServices::openUrl(url)) {
    ShowMessage(u"No browser could be started. The page is\n"_s + url.toString());
  }
}
