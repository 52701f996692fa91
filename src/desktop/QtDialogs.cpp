#include "desktop/QtDialogs.h"

#include <QApplication>
#include <QColorDialog>
#include <QDesktopServices>
#include <QDir>
#include <QFileDialog>
#include <QFontDialog>
#include <QMainWindow>
#include <QMessageBox>
#include <QPointer>
#include <QUrl>

#include "runtime/RuntimeError.h"

using namespace Qt::StringLiterals;

namespace {

/// The window that a box belongs to, and that is active again once the box has closed. After one has closed no window
/// may be active for a while; then it is the screen in sight.
QWidget* Owner() {
  if (QWidget* active = QApplication::activeWindow()) {
    return active;
  }
  for (QWidget* window : QApplication::topLevelWidgets()) {
    if (window->isVisible() && qobject_cast<QMainWindow*>(window) != nullptr) {
      return window;
    }
  }
  return nullptr;
}

class OwnerAgain {
 public:
  explicit OwnerAgain(QWidget* owner) : m_owner(owner) {}
  ~OwnerAgain() {
    if (m_owner != nullptr && m_owner->isVisible()) {
      m_owner->activateWindow();
    }
  }
  OwnerAgain(const OwnerAgain&) = delete;
  OwnerAgain& operator=(const OwnerAgain&) = delete;

 private:
  QPointer<QWidget> m_owner;
};

int ShowBox(const QString& text, const QString& title, QMessageBox::StandardButtons buttons,
            QMessageBox::StandardButton escape) {
  QWidget* owner = Owner();
  const OwnerAgain again(owner);
  QMessageBox box(QMessageBox::NoIcon, title.isEmpty() ? u"Karvex Invoicer"_s : title, text, buttons, owner);
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

QColor FromPacked(quint32 packed) {
  return QColor(static_cast<int>(packed & 0xFF), static_cast<int>((packed >> 8) & 0xFF),
                static_cast<int>((packed >> 16) & 0xFF));
}

quint32 ToPacked(const QColor& color) {
  return static_cast<quint32>(color.red()) | static_cast<quint32>(color.green()) << 8 |
         static_cast<quint32>(color.blue()) << 16;
}

}  // namespace

void QtDialogs::ShowMessage(const QString& text, const QString& title) {
  ShowBox(text, title, QMessageBox::Ok, QMessageBox::Ok);
}

bool QtDialogs::AskYesNo(const QString& text, const QString& title) {
  return ShowBox(text, title, QMessageBox::Yes | QMessageBox::No, QMessageBox::No) == QMessageBox::Yes;
}

void QtDialogs::Beep() {
  QApplication::beep();
}

QString QtDialogs::ChooseFile(const QString& title, const QString& filter) {
  QWidget* owner = Owner();
  const OwnerAgain again(owner);
  const QString chosen = QFileDialog::getOpenFileName(owner, title, QDir::homePath(), ToolkitFilter(filter));
  if (chosen.isEmpty()) {
    ThrowCancelled(title);
  }
  return chosen;
}

quint32 QtDialogs::ChooseColor(quint32 current) {
  QWidget* owner = Owner();
  const OwnerAgain again(owner);
  const QColor chosen = QColorDialog::getColor(FromPacked(current), owner);
  if (!chosen.isValid()) {
    ThrowCancelled(u"Color"_s);
  }
  return ToPacked(chosen);
}

QString QtDialogs::ChooseFont(const QString& current) {
  QWidget* owner = Owner();
  const OwnerAgain again(owner);
  bool accepted = false;
  // Only scalable fonts come out on paper as they look on the screen.
  const QFont chosen = QFontDialog::getFont(&accepted, QFont(current), owner, QString(), QFontDialog::ScalableFonts);
  if (!accepted) {
    ThrowCancelled(u"Font"_s);
  }
  return chosen.family();
}

void QtDialogs::OpenPage(const QString& address) {
  const QUrl url = QUrl::fromUserInput(address, QString(), QUrl::AssumeLocalFile);
  if (!QDesktopServices::openUrl(url)) {
    ShowMessage(u"No browser could be started. The page is\n"_s + url.toString());
  }
}
