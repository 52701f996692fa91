#include "torture/Desk.h"

#include <cstdio>
#include <QAbstractButton>
#include <QApplication>
#include <QDialogButtonBox>
#include <QDir>
#include <QInputDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPrintDialog>
#include <QTimer>

#include "desktop/Style.h"
#include "torture/FileCalls.h"

using namespace Qt::StringLiterals;

Desk::Desk(const QString& root, bool onPaper) : m_root(root) {
  if (onPaper) m_printer = std::make_unique<PaperPrinter>(m_store, m_dialogs, m_root + u"/Printed"_s);
  ApplyStyle(*qApp);
  qApp->installEventFilter(this);
}

Desk::~Desk() = default;

bool Desk::Start() {
  Printer& paper = m_printer ? static_cast<Printer&>(*m_printer) : m_recorder;
  m_program = std::make_unique<Program>(PlatformOn(m_root, m_files, m_calendar, m_dialogs, paper, m_modem));
  const bool runs = m_program->Start();
  ScreenDriver::ProcessEvents();
  return runs;
}

bool Desk::GoToMenu() {
  if (HasEnded() || !Shows(u"frmSplash"_s)) return false;
  ScreenDriver(u"frmSplash"_s).Click(u"cmdContinue"_s);
  return Shows(u"frmStartup"_s);
}

void Desk::OpenRoutine(int option) const {
  const ScreenDriver menu(u"frmStartup"_s);
  menu.Click(u"optMainMenuSub_%1"_s.arg(option));
  menu.Click(u"cmdGoto"_s);
}

void Desk::Print(QPrintDialog& dialog) const {
  if (auto* file = dialog.findChild<QLineEdit*>(u"filename"_s)) file->setText(ChosenFile);
  dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->click();
  // It says itself why it can't take the file; the user gives up.
  if (dialog.isVisible()) dialog.reject();
}

void Desk::Answer(QDialog& dialog) {
  if (auto* printer = qobject_cast<QPrintDialog*>(&dialog)) {
    Print(*printer);
    return;
  }
  auto* message = qobject_cast<QMessageBox*>(&dialog);
  auto* input = qobject_cast<QInputDialog*>(&dialog);
  // The progress of long work asks nothing.
  if (message == nullptr && input == nullptr) return;
  const QString text = message != nullptr ? message->text() : QString();
  Boxes.append(dialog.windowTitle() + u": "_s + text);
  std::fprintf(stderr, "%s\n", qPrintable(Boxes.last()));
  FileCalls::Mark("told: " + Boxes.last().toStdString());
  if (input != nullptr) input->setTextValue(InputText);
  QAbstractButton* yes = message == nullptr ? nullptr : message->button(QMessageBox::Yes);
  if (yes == nullptr && message != nullptr) yes = message->button(QMessageBox::Ok);
  if (yes != nullptr) {
    yes->click();
  } else {
    dialog.accept();
  }
}

bool Desk::eventFilter(QObject* watched, QEvent* event) {
  // Nobody looks, and drawing starts threads, which no fork takes along.
  if (event->type() == QEvent::Polish && watched->isWidgetType() && static_cast<QWidget*>(watched)->isWindow()) {
    static_cast<QWidget*>(watched)->setUpdatesEnabled(false);
  }
  if (event->type() == QEvent::Show) {
    if (auto* dialog = qobject_cast<QDialog*>(watched)) {
      QTimer::singleShot(0, dialog, [this, dialog] { Answer(*dialog); });
    }
  }
  return QObject::eventFilter(watched, event);
}
